#pragma once

#include "cli/Console.h"

#include <nlohmann/json.hpp>

#include <string>
#include <string_view>

namespace tintra::cli {

using Json = nlohmann::ordered_json;

/// What every command accepts.
struct GlobalOptions {
    bool json = false;
    bool quiet = false;
    std::string colour = "auto";
    std::string rgbProfile; ///< empty: the default
    std::string cmykProfile;
    std::string illuminant = "d50";
};

enum ExitStatus : int { done = 0, failed = 1, wrongUsage = 2 };

/// One run of one command: its common options, its output, and whether anything failed.
class Session {
public:
    Session(Console& console, const GlobalOptions& options);

    bool json() const { return options_.json; }
    const GlobalOptions& options() const { return options_; }
    std::istream& in() { return console_.in; }

    /// Results; held back and written in large pieces.
    void print(std::string_view text);
    void printLine(std::string_view text);
    void printJson(const Json& document);
    void flush();

    /// A swatch block in the colour's bytes and a blank, or nothing where blocks are off.
    std::string block(const struct SwatchBytes& bytes) const;
    bool showsBlocks() const { return showsBlocks_; }

    /// An input that gave nothing: one line on standard error, and the run counts as failed.
    void failure(std::string_view subject, std::string_view why);
    /// Something worth knowing that does not change the result; silent with --quiet.
    void notice(std::string_view subject, std::string_view what);
    /// Progress of long work, overwritten in place: only on a terminal, never with --quiet.
    void progress(std::size_t doneCount, std::size_t total, std::string_view what);

    ExitStatus status() const { return failed_ ? ExitStatus::failed : ExitStatus::done; }

private:
    void message(std::string_view subject, std::string_view text);
    void clearProgress();

    Console& console_;
    GlobalOptions options_;
    bool showsBlocks_;
    bool failed_ = false;
    bool progressShown_ = false;
    std::string pending_;
};

/// The bytes of a swatch block.
struct SwatchBytes {
    int r = 0, g = 0, b = 0;
};

} // namespace tintra::cli
