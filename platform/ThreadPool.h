#pragma once

#include "platform/Background.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

namespace tintra {

/// A fixed number of threads (at least one) that take work in turn. At its end it waits for the
/// work that has begun and drops the rest. Work must not throw.
class ThreadPool final : public Background {
public:
    explicit ThreadPool(unsigned threads);
    ~ThreadPool() override;
    ThreadPool(const ThreadPool&) = delete;
    ThreadPool& operator=(const ThreadPool&) = delete;

    void run(std::function<void()> work) override;

private:
    void takeWork();

    std::mutex lock_;
    std::condition_variable change_;
    std::deque<std::function<void()>> waiting_; ///< under the lock
    bool ending_ = false;                       ///< under the lock
    std::vector<std::thread> threads_;
};

} // namespace tintra
