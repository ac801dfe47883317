#include "platform/desktop/services/EndingSignals.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <utility>

namespace tintra {
namespace {

constexpr std::array kEnding{SIGTERM, SIGINT, SIGHUP};

/// Where the handler writes: it may do little else.
std::atomic<int> arrivals{-1};

void note(int) {
    const int before = errno;
    const std::uint64_t one = 1;
    [[maybe_unused]] const auto written = ::write(arrivals, &one, sizeof one);
    errno = before;
}

void handle(int signal, void (*handler)(int), int flags) {
    struct sigaction now {};
    ::sigaction(signal, nullptr, &now);
    if (now.sa_handler == SIG_IGN) return;
    now = {};
    now.sa_handler = handler;
    now.sa_flags = flags;
    ::sigaction(signal, &now, nullptr);
}

} // namespace

EndingSignals::EndingSignals(std::function<void()> told)
    : arrived_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)),
      notifier_(arrived_.number(), QSocketNotifier::Read) {
    QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_,
                     [this, told = std::move(told)] {
                         std::uint64_t count = 0;
                         if (::read(arrived_.number(), &count, sizeof count) > 0) told();
                     });
    arrivals = arrived_.number();
    for (const int signal : kEnding)
        handle(signal, note, static_cast<int>(SA_RESTART | SA_RESETHAND));
}

EndingSignals::~EndingSignals() {
    for (const int signal : kEnding)
        handle(signal, SIG_DFL, 0);
    arrivals = -1;
}

} // namespace tintra
