#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <locale>
#include <string>

namespace tintra {

/// While it lives, C++ streams and, where the machine can, the C library write "1.234,5". Few
/// machines have a German locale; where the sources of locales are, one is compiled.
class CommaLocale {
public:
    CommaLocale() : streams_(std::locale::global(std::locale(std::locale(), new Commas))) {
        setenv("LOCPATH", folder_.c_str(), 1);
        std::filesystem::create_directories(folder_);
        const auto compile =
            "localedef -i de_DE -f UTF-8 " + folder_ + "/de_DE.UTF-8 >/dev/null 2>&1";
        // NOLINTNEXTLINE(cert-env33-c,concurrency-mt-unsafe): the text is the test's own
        const bool compiled = std::system(compile.c_str()) == 0;
        if (!compiled) unsetenv("LOCPATH"); // then one that is installed
        reachesC_ = std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
    }
    ~CommaLocale() {
        static_cast<void>(std::setlocale(LC_ALL, "C"));
        std::locale::global(streams_);
        unsetenv("LOCPATH");
        std::filesystem::remove_all(folder_);
    }
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;

    bool reachesC() const { return reachesC_; }

private:
    struct Commas : std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
        std::string do_grouping() const override { return "\3"; }
    };

    std::string folder_ = testing::TempDir() + "tintra-locale-" + std::to_string(getpid());
    std::locale streams_;
    bool reachesC_ = false;
};

} // namespace tintra
