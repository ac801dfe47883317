#pragma once

#include <functional>
#include <memory>

namespace tintra {

/// A task that is still to run; destroying it calls it off. Main loop.
class DelayedTask {
public:
    DelayedTask() = default;
    virtual ~DelayedTask() = default;
    DelayedTask(const DelayedTask&) = delete;
    DelayedTask& operator=(const DelayedTask&) = delete;
};

/// The one loop on which every model runs.
class MainLoop {
public:
    virtual ~MainLoop() = default;

    /// Runs the task on the loop, after those posted before. Any thread.
    virtual void post(std::function<void()> task) = 0;

    /// Runs the task on the loop, once, when that many seconds have passed. Main loop.
    [[nodiscard]] virtual std::unique_ptr<DelayedTask> after(double seconds,
                                                             std::function<void()> task) = 0;
};

} // namespace tintra
