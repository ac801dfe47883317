#pragma once

#include <functional>
#include <istream>
#include <string_view>

namespace tintra::cli {

/// Where a run of the command reads and writes. `out` and `err` may throw OutputClosed or
/// OutputFailed.
struct Console {
    std::istream& in;
    std::function<void(std::string_view)> out;
    std::function<void(std::string_view)> err;
    bool outIsTerminal = false;
    bool errIsTerminal = false;
};

/// The reader at the other end has gone: nothing more to do, and no error.
struct OutputClosed {};

/// Standard output cannot take more; `why` is one phrase.
struct OutputFailed {
    std::string why;
};

} // namespace tintra::cli
