#include "cli/Run.h"

#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <iostream>
#include <system_error>

namespace {

void writeAll(int descriptor, std::string_view text) {
    while (!text.empty()) {
        const auto written = ::write(descriptor, text.data(), text.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0 && errno == EPIPE) throw tintra::cli::OutputClosed{};
        if (written < 0) throw tintra::cli::OutputFailed{std::generic_category().message(errno)};
        text.remove_prefix(static_cast<std::size_t>(written));
    }
}

/// Nobody is left to tell when standard error cannot be written.
void complain(std::string_view text) {
    try {
        writeAll(STDERR_FILENO, text);
    } catch (const tintra::cli::OutputClosed&) {
    } catch (const tintra::cli::OutputFailed&) {
    }
}

} // namespace

int main(int count, char** arguments) {
    // A reader that has gone is seen as a failed write, whoever started the program.
    std::signal(SIGPIPE, SIG_IGN);
    std::ios::sync_with_stdio(false);
    tintra::cli::Console console{
        std::cin, [](std::string_view text) { writeAll(STDOUT_FILENO, text); }, complain,
        ::isatty(STDOUT_FILENO) == 1, ::isatty(STDERR_FILENO) == 1};
    return tintra::cli::run({arguments + 1, arguments + count}, console);
}
