#pragma once

#include <unistd.h>

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <locale>
#include <string>

namespace tintra {

/// While it lives, C++ streams and, where the machine can, the C library write "1.234,5". Few
/// machines have a German locale installed; where the sources of locales are, one is compiled.
class CommaLocale {
public:
    CommaLocale() : streams_(std::locale::global(std::locale(std::locale(), new Commas))) {
        reachesC_ = setC() || (compile() && setC());
    }
    ~CommaLocale() {
        std::setlocale(LC_ALL, c_.c_str());
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
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };

    static bool setC() {
        return std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr &&
               *std::localeconv()->decimal_point == ',';
    }

    bool compile() const {
        std::filesystem::create_directories(folder_);
        setenv("LOCPATH", folder_.c_str(), 1);
        const auto command =
            "localedef -i de_DE -f UTF-8 '" + folder_.string() + "/de_DE.UTF-8' >/dev/null 2>&1";
        return std::system(command.c_str()) == 0; // NOLINT(cert-env33-c,concurrency-mt-unsafe)
    }

    std::filesystem::path folder_ =
        std::filesystem::temp_directory_path() / ("tintra-locale-" + std::to_string(getpid()));
    std::string c_ = std::setlocale(LC_ALL, nullptr);
    std::locale streams_;
    bool reachesC_ = false;
};

} // namespace tintra
