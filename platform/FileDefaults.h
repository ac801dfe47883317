#pragma once

#include "platform/DefaultsStore.h"
#include "platform/RecordFile.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <thread>

namespace tintra {

class Clock;
class MainLoop;

/// Records as files, one a key, each replaced whole or not at all: killed at any moment, the
/// program leaves the old record or the new one. A thread of its own writes, so that the main loop
/// never waits for the disk but in `flush` and at the end of the store, which writes what is left.
class FileDefaults final : public DefaultsStore {
public:
    struct Folders {
        std::filesystem::path settings; ///< for "TintraPreferences"
        std::filesystem::path state;    ///< for every other record
    };

    /// The loop and the clock outlive the store.
    FileDefaults(Folders folders, MainLoop& mainLoop, const Clock& clock);
    ~FileDefaults() override;
    FileDefaults(const FileDefaults&) = delete;
    FileDefaults& operator=(const FileDefaults&) = delete;

    std::optional<std::string> data(std::string_view key) override;
    void set(std::string_view key, std::string record) override;
    void remove(std::string_view key) override;
    void setAside(std::string_view key) override;
    /// Failures are told before it returns, so that a program about to end hears of them.
    void flush() override;
    void
    whenFailing(std::function<void(std::string_view key, const FileError& error)> told) override;
    void whenRecovered(std::function<void()> told) override;

private:
    using Record = std::shared_ptr<const std::string>;
    enum class Do { write, remove, setAside };
    struct Step {
        Do what = Do::write;
        Record record; ///< what to write
        std::chrono::system_clock::time_point when;
    };
    using Steps = std::deque<Step>;
    class News;

    static void add(Steps& steps, Step step);
    RecordFile file(std::string_view key) const;
    void order(std::string_view key, Step step);
    void finish();
    void write();
    void writeNext(std::unique_lock<std::mutex>& hold);
    void report(const std::string& key, std::optional<FileError> failed);
    static std::optional<FileError> perform(const RecordFile& file, Steps& steps);

    const Folders folders_;
    MainLoop& mainLoop_;
    const Clock& clock_;
    std::map<std::string, Record, std::less<>> known_; ///< null for a record that was removed
    std::shared_ptr<News> news_;

    std::mutex lock_; ///< of all that follows
    std::condition_variable change_;
    std::map<std::string, Steps, std::less<>> steps_; ///< what is left to do, also after a failure
    std::deque<std::string> due_;                     ///< keys to be written, each once
    std::set<std::string> failing_;                   ///< keys whose last try failed
    bool writing_ = false;
    bool ending_ = false;
    std::thread writer_;
};

} // namespace tintra
