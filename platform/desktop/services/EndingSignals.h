#pragma once

#include "platform/Descriptor.h"

#include <QSocketNotifier>
#include <functional>

namespace tintra {

/// The signals that ask a program to end (SIGTERM, SIGINT, SIGHUP), told on the main loop. The
/// second of a kind ends the process at once, as it would without this. One that the process was
/// started to ignore stays ignored. One object a process. Main loop.
class EndingSignals final {
public:
    explicit EndingSignals(std::function<void()> told);
    /// Signals have their usual effect again.
    ~EndingSignals();
    EndingSignals(const EndingSignals&) = delete;
    EndingSignals& operator=(const EndingSignals&) = delete;

private:
    Descriptor arrived_; ///< counts the signals that came
    QSocketNotifier notifier_;
};

} // namespace tintra
