#include "platform/desktop/services/QtMainLoop.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace tintra {

namespace {

struct TaskEvent final : QEvent {
    explicit TaskEvent(std::function<void()> given) : QEvent(User), task(std::move(given)) {}
    std::function<void()> task;
};

struct TimerTask final : DelayedTask {
    QTimer timer;
};

int milliseconds(double seconds) {
    constexpr double kMost = std::numeric_limits<int>::max(); // 24 days
    return static_cast<int>(std::clamp(std::ceil(seconds * 1000), 0.0, kMost));
}

} // namespace

bool QtMainLoop::Receiver::event(QEvent* event) {
    if (event->type() != QEvent::User) return QObject::event(event);
    static_cast<TaskEvent*>(event)->task();
    return true;
}

void QtMainLoop::post(std::function<void()> task) {
    QCoreApplication::postEvent(&receiver_, new TaskEvent(std::move(task)));
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
