#include "cli/Session.h"

#include <fmt/format.h>

#include <cstdlib>

namespace tintra::cli {

namespace {

constexpr std::size_t kPiece = 1U << 16U;

bool wantsBlocks(const Console& console, const GlobalOptions& options) {
    if (options.json || options.colour == "never") return false;
    if (options.colour == "always") return true;
    const char* refused = std::getenv("NO_COLOR"); // NOLINT(concurrency-mt-unsafe): nobody sets it
    return console.outIsTerminal && (refused == nullptr || *refused == '\0');
}

} // namespace

Session::Session(Console& console, const GlobalOptions& options)
    : console_(console), options_(options), showsBlocks_(wantsBlocks(console, options)) {}

void Session::print(std::string_view text) {
    pending_ += text;
    if (pending_.size() >= kPiece) flush();
}

void Session::printLine(std::string_view text) {
    print(text);
    print("\n");
}

void Session::printJson(const Json& document) {
    // Names come from files: what is no UTF-8 is replaced, so that the document always is.
    printLine(document.dump(2, ' ', false, Json::error_handler_t::replace));
}

void Session::flush() {
    if (pending_.empty()) return;
    clearProgress();
    console_.out(pending_);
    pending_.clear();
}

std::string Session::block(const SwatchBytes& bytes) const {
    if (!showsBlocks_) return {};
    return fmt::format("\x1b[48;2;{};{};{}m    \x1b[0m ", bytes.r, bytes.g, bytes.b);
}

void Session::message(std::string_view subject, std::string_view text) {
    clearProgress();
    console_.err(fmt::format("tintra: {}: {}\n", subject, text));
}

void Session::failure(std::string_view subject, std::string_view why) {
    failed_ = true;
    message(subject, why);
}

void Session::notice(std::string_view subject, std::string_view what) {
    if (!options_.quiet) message(subject, what);
}

void Session::progress(std::size_t doneCount, std::size_t total, std::string_view what) {
    if (options_.quiet || !console_.errIsTerminal) return;
    console_.err(fmt::format("\r\x1b[K{} of {} {}", doneCount, total, what));
    progressShown_ = true;
}

void Session::clearProgress() {
    if (!progressShown_) return;
    console_.err("\r\x1b[K");
    progressShown_ = false;
}

} // namespace tintra::cli
