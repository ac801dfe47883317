#include "ui/program/SessionEnd.h"

#include <QEvent>
#include <QGuiApplication>
#include <QSessionManager>
#include <utility>

namespace tintra {

SessionEnd::SessionEnd(Told told) : told_(std::move(told)), signals_(told_.leave) {
    connect(qApp, &QGuiApplication::commitDataRequest, this,
            [this](QSessionManager&) { told_.keep(); });
    qApp->installEventFilter(this);
}

bool SessionEnd::eventFilter(QObject* watched, QEvent* event) {
    // Left to Qt, it would close window by window, each with its question.
    if (event->type() != QEvent::Quit || watched != qApp) return false;
    told_.leave();
    return true;
}

} // namespace tintra
