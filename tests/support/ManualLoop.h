#pragma once

#include "platform/Background.h"
#include "platform/Clock.h"
#include "platform/MainLoop.h"

#include <algorithm>
#include <deque>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace tintra {

/// A main loop and its clock that move only when a test says so.
class ManualLoop final : public MainLoop, public Clock {
public:
    double seconds() const override { return now_; }
    std::chrono::system_clock::time_point date() const override {
        return std::chrono::system_clock::time_point(
            std::chrono::milliseconds(static_cast<std::int64_t>(1.7e12 + now_ * 1000)));
    }

    void post(std::function<void()> task) override { posted_.push_back(std::move(task)); }
    std::unique_ptr<DelayedTask> after(double seconds, std::function<void()> task) override {
        auto timer = std::make_shared<Timer>(Timer{now_ + seconds, std::move(task)});
        timers_.push_back(timer);
        return std::make_unique<Handle>(std::move(timer));
    }

    /// Runs what is posted, and what that posts.
    void turn() {
        while (!posted_.empty()) {
            auto task = std::move(posted_.front());
            posted_.pop_front();
            task();
        }
    }
    /// Lets time pass, running what falls due at its time.
    void pass(double seconds) {
        const double end = now_ + seconds;
        turn();
        while (auto due = nextBefore(end)) {
            now_ = std::max(now_, due->at);
            const auto task = std::exchange(due->task, {});
            task();
            turn();
        }
        now_ = end;
    }

private:
    struct Timer {
        double at;
        std::function<void()> task; ///< empty once it ran or was called off
    };
    struct Handle final : DelayedTask {
        explicit Handle(std::shared_ptr<Timer> held) : timer(std::move(held)) {}
        ~Handle() override { timer->task = {}; }
        std::shared_ptr<Timer> timer;
    };

    std::shared_ptr<Timer> nextBefore(double end) {
        std::erase_if(timers_, [](const auto& timer) { return !timer->task; });
        const auto first =
            std::min_element(timers_.begin(), timers_.end(),
                             [](const auto& a, const auto& b) { return a->at < b->at; });
        return first != timers_.end() && (*first)->at <= end ? *first : nullptr;
    }

    double now_ = 1000;
    std::deque<std::function<void()>> posted_;
    std::vector<std::shared_ptr<Timer>> timers_;
};

/// Background work that is done at once, or when a test says so.
class ManualBackground final : public Background {
public:
    void run(std::function<void()> work) override {
        waiting_.push_back(std::move(work));
        if (!holds) finish();
    }
    /// Does everything that waits.
    void finish() {
        while (!waiting_.empty())
            doNext();
    }
    /// Does what has waited longest.
    void doNext() {
        auto work = std::move(waiting_.front());
        waiting_.pop_front();
        work();
    }
    bool holds = false; ///< work waits for `finish`

private:
    std::deque<std::function<void()>> waiting_;
};

} // namespace tintra
