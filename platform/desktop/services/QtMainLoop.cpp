#include "platform/desktop/services/QtMainLoop.h"

#include <QTimer>
#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace tintra {

namespace {

struct TimerTask final : DelayedTask {
    QTimer timer;
};

int milliseconds(double seconds) {
    constexpr double kMost = std::numeric_limits<int>::max(); // 24 days
    return static_cast<int>(std::clamp(std::ceil(seconds * 1000), 0.0, kMost));
}

} // namespace

void QtMainLoop::post(std::function<void()> task) {
    QMetaObject::invokeMethod(&receiver_, std::move(task), Qt::QueuedConnection);
}

std::unique_ptr<DelayedTask> QtMainLoop::after(double seconds, std::function<void()> task) {
    auto delayed = std::make_unique<TimerTask>();
    delayed->timer.setSingleShot(true);
    delayed->timer.setTimerType(Qt::PreciseTimer);
    // A task may destroy its own handle, and with it the timer: it runs from a copy of its own.
    QObject::connect(&delayed->timer, &QTimer::timeout, &receiver_,
                     [task = std::move(task)]() mutable { std::exchange(task, {})(); });
    delayed->timer.start(milliseconds(seconds));
    return delayed;
}

} // namespace tintra
