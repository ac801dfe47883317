#pragma once

#include <cstdio>
#include <utility>

namespace tintra {

/// Keeps libraries from printing while it lives. Those below the picture readers (libpng, libtiff,
/// the video decoders) tell `stderr` what they find odd in a file and offer their callers' callers
/// no other way; what matters is worded by whoever asked for the picture. The program's own
/// messages do not go through `stderr`.
class QuietStandardError {
public:
    QuietStandardError() : before_(std::exchange(stderr, nowhere())) {}
    ~QuietStandardError() { stderr = before_; }
    QuietStandardError(const QuietStandardError&) = delete;
    QuietStandardError& operator=(const QuietStandardError&) = delete;

private:
    /// Opened once; standard error itself where that fails.
    static std::FILE* nowhere() {
        static std::FILE* const file = std::fopen("/dev/null", "we");
        return file == nullptr ? stderr : file;
    }

    std::FILE* before_;
};

} // namespace tintra
