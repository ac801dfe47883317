#pragma once

#include <chrono>

namespace tintra {

/// What time it is. Any thread.
class Clock {
public:
    virtual ~Clock() = default;

    /// Seconds since some moment before the program began; never goes back.
    virtual double seconds() const = 0;
    virtual std::chrono::system_clock::time_point date() const = 0;
};

class SystemClock final : public Clock {
public:
    double seconds() const override;
    std::chrono::system_clock::time_point date() const override;
};

} // namespace tintra
