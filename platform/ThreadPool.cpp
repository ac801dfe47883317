#include "platform/ThreadPool.h"

#include <algorithm>
#include <utility>

namespace tintra {

ThreadPool::ThreadPool(unsigned threads) {
    for (unsigned i = 0; i < std::max(threads, 1U); ++i)
        threads_.emplace_back([this] { takeWork(); });
}

ThreadPool::~ThreadPool() {
    {
        const std::lock_guard hold(lock_);
        ending_ = true;
    }
    change_.notify_all();
    for (auto& thread : threads_)
        thread.join();
}

void ThreadPool::run(std::function<void()> work) {
    {
        const std::lock_guard hold(lock_);
        if (ending_) return;
        waiting_.push_back(std::move(work));
    }
    change_.notify_one();
}

void ThreadPool::takeWork() {
    for (;;) {
        std::unique_lock hold(lock_);
        change_.wait(hold, [this] { return ending_ || !waiting_.empty(); });
        if (ending_) return;
        const auto work = std::move(waiting_.front());
        waiting_.pop_front();
        hold.unlock();
        work();
    }
}

} // namespace tintra
