#pragma once

#include <string_view>

namespace tintra {

/// Where the program leaves a line for whoever looks for a fault. Any thread.
class Log {
public:
    virtual ~Log() = default;
    virtual void line(std::string_view text) = 0;
};

/// Lines on standard error.
class StandardErrorLog final : public Log {
public:
    void line(std::string_view text) override;
};

} // namespace tintra
