#pragma once

#include "platform/MainLoop.h"

#include <QObject>

namespace tintra {

/// Qt's event loop of the thread that made it. Tasks that have not run when it is destroyed never
/// run; those that are posted after the application quit wait for the next loop, if there is one.
class QtMainLoop final : public MainLoop {
public:
    void post(std::function<void()> task) override;
    /// Not before its time, and a few milliseconds late at most unless the loop is busy.
    std::unique_ptr<DelayedTask> after(double seconds, std::function<void()> task) override;

private:
    /// Lives on the main thread; tasks that are on their way to it end with it.
    class Receiver final : public QObject {
    public:
        bool event(QEvent* event) override;
    };

    Receiver receiver_;
};

} // namespace tintra
