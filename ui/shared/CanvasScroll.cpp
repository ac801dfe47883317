#include "ui/shared/CanvasScroll.h"

#include "ui/shared/Canvas.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>

namespace tintra {

CanvasScroll::CanvasScroll(QWidget* parent, Qt::Orientation along)
    : QScrollArea(parent), along_(along) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    if (along == Qt::Vertical)
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    else
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
}

void CanvasScroll::hold(Canvas& canvas) {
    setWidget(&canvas);
}

void CanvasScroll::reveal(const QRect& what) {
    constexpr int kMargin = 12;
    const auto middle = what.center();
    ensureVisible(middle.x(), middle.y(), what.width() / 2 + kMargin, what.height() / 2 + kMargin);
}

void CanvasScroll::keyPressEvent(QKeyEvent* event) {
    event->ignore();
}

void CanvasScroll::wheelEvent(QWheelEvent* event) {
    // Either wheel scrolls the one way that there is.
    if (along_ == Qt::Horizontal)
        QCoreApplication::sendEvent(horizontalScrollBar(), event);
    else
        QScrollArea::wheelEvent(event);
}

} // namespace tintra
