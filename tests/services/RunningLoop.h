#pragma once

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QTimer>

namespace tintra {

/// Lets the event loop run until the condition holds; false when it does not within 20 seconds.
template <typename Condition>
bool waitFor(Condition condition) {
    constexpr int kPatience = 20000; // milliseconds
    const QDeadlineTimer deadline(kPatience);
    QTimer wake; // the loop returns only when something happens
    wake.start(kPatience);
    while (!condition() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return condition();
}

} // namespace tintra
