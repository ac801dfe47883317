#pragma once

#include <functional>

namespace tintra {

/// Threads beside the main loop.
class Background {
public:
    virtual ~Background() = default;

    /// Runs the work on another thread; work is begun in the order in which it was given. What it
    /// finds goes back through MainLoop::post. Work that has not begun when the program ends is
    /// dropped. Any thread.
    virtual void run(std::function<void()> work) = 0;
};

} // namespace tintra
