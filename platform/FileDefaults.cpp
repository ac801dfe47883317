#include "platform/FileDefaults.h"

#include "platform/Clock.h"
#include "platform/MainLoop.h"

#include <algorithm>
#include <utility>

namespace tintra {

/// What could not be written and who is to hear of it. Any thread adds, the main loop tells.
class FileDefaults::News {
public:
    using Failing = std::function<void(std::string_view, const FileError&)>;
    using Recovered = std::function<void()>;

    struct Item {
        std::string key;
        std::optional<FileError> error; ///< none: nothing fails any more
    };

    /// Whether it is the first since the last were told. Of failures of a key the last is told.
    bool add(Item item) {
        const std::lock_guard hold(lock_);
        const bool first = waiting_.empty();
        std::erase_if(waiting_, [&](const Item& old) { return old.error && old.key == item.key; });
        waiting_.push_back(std::move(item));
        return first;
    }

    void whenFailing(Failing told) { failing_ = std::move(told); }
    void whenRecovered(Recovered told) { recovered_ = std::move(told); }

    /// Does nothing while it is telling: whoever is told may set records and flush.
    void tell() {
        if (std::exchange(telling_, true)) return;
        for (const auto& item : take())
            tell(item);
        telling_ = false;
    }

private:
    std::vector<Item> take() {
        const std::lock_guard hold(lock_);
        return std::exchange(waiting_, {});
    }

    void tell(const Item& item) const {
        const auto failing = failing_;
        const auto recovered = recovered_;
        if (item.error && failing) failing(item.key, *item.error);
        if (!item.error && recovered) recovered();
    }

    std::mutex lock_;
    std::vector<Item> waiting_; ///< under the lock
    Failing failing_;
    Recovered recovered_;
    bool telling_ = false;
};

FileDefaults::FileDefaults(Folders folders, MainLoop& mainLoop, const Clock& clock)
    : folders_(std::move(folders)), mainLoop_(mainLoop), clock_(clock),
      news_(std::make_shared<News>()), writer_([this] { write(); }) {}

FileDefaults::~FileDefaults() {
    finish();
    {
        const std::lock_guard hold(lock_);
        ending_ = true;
    }
    change_.notify_all();
    writer_.join();
}

std::optional<std::string> FileDefaults::data(std::string_view key) {
    const auto known = known_.find(key);
    if (known == known_.end()) return file(key).read();
    return known->second ? std::optional(*known->second) : std::nullopt;
}

void FileDefaults::set(std::string_view key, std::string record) {
    auto& known = known_[std::string(key)];
    known = std::make_shared<const std::string>(std::move(record));
    order(key, {Do::write, known, clock_.date()});
}

void FileDefaults::remove(std::string_view key) {
    known_[std::string(key)] = nullptr;
    order(key, {Do::remove, nullptr, clock_.date()});
}

void FileDefaults::setAside(std::string_view key) {
    known_[std::string(key)] = nullptr;
    order(key, {Do::setAside, nullptr, clock_.date()});
}

void FileDefaults::flush() {
    finish();
    news_->tell();
}

void FileDefaults::whenFailing(std::function<void(std::string_view, const FileError&)> told) {
    news_->whenFailing(std::move(told));
}

void FileDefaults::whenRecovered(std::function<void()> told) {
    news_->whenRecovered(std::move(told));
}

RecordFile FileDefaults::file(std::string_view key) const {
    return {key == "TintraPreferences" ? folders_.settings : folders_.state, key};
}

/// A record that has not been written yet is not worth writing once there is a newer one, but it is
/// when it is to be set aside.
void FileDefaults::add(Steps& steps, Step step) {
    const bool replaces =
        !steps.empty() && steps.back().what != Do::setAside && step.what != Do::setAside;
    if (replaces) steps.pop_back();
    steps.push_back(std::move(step));
}

void FileDefaults::order(std::string_view key, Step step) {
    {
        const std::lock_guard hold(lock_);
        add(steps_[std::string(key)], std::move(step));
        if (std::ranges::find(due_, key) == due_.end()) due_.emplace_back(key);
    }
    change_.notify_all();
}

/// Tries everything that is left to do, once.
void FileDefaults::finish() {
    std::unique_lock hold(lock_);
    for (const auto& [key, steps] : steps_)
        if (std::ranges::find(due_, key) == due_.end()) due_.push_back(key);
    change_.notify_all();
    change_.wait(hold, [this] { return due_.empty() && !writing_; });
}

/// The writing thread.
void FileDefaults::write() {
    removeLeftovers(folders_.settings);
    removeLeftovers(folders_.state);
    std::unique_lock hold(lock_);
    for (;;) {
        change_.wait(hold, [this] { return ending_ || !due_.empty(); });
        if (due_.empty()) return;
        writeNext(hold);
    }
}

void FileDefaults::writeNext(std::unique_lock<std::mutex>& hold) {
    const auto key = std::move(due_.front());
    due_.pop_front();
    auto left = std::move(steps_.extract(key).mapped());
    writing_ = true;
    hold.unlock();
    auto failed = perform(file(key), left);
    hold.lock();
    const bool newer = steps_.contains(key); // tried next: its success or failure is what counts
    if (!left.empty()) {
        for (auto& step : std::exchange(steps_[key], {}))
            add(left, std::move(step));
        steps_[key] = std::move(left);
    }
    if (!newer) report(key, std::move(failed));
    writing_ = false;
    change_.notify_all();
}

void FileDefaults::report(const std::string& key, std::optional<FileError> failed) {
    const bool wasFailing = !failing_.empty();
    if (failed)
        failing_.insert(key);
    else
        failing_.erase(key);
    const bool isNews = failed || (wasFailing && failing_.empty());
    if (isNews && news_->add({key, std::move(failed)}))
        mainLoop_.post([told = std::weak_ptr(news_)] {
            if (const auto news = told.lock()) news->tell();
        });
}

/// Takes away the steps that succeeded.
std::optional<FileError> FileDefaults::perform(const RecordFile& file, Steps& steps) {
    for (; !steps.empty(); steps.pop_front()) {
        const auto& step = steps.front();
        auto failed = step.what == Do::write    ? file.write(*step.record, step.when)
                      : step.what == Do::remove ? file.remove(step.when)
                                                : file.setAside(step.when);
        if (failed) return failed;
    }
    return std::nullopt;
}

} // namespace tintra
