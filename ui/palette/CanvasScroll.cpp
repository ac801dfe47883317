#include "ui/palette/CanvasScroll.h"

#include "ui/shared/Canvas.h"

#include <QKeyEvent>

namespace tintra {

CanvasScroll::CanvasScroll(QWidget* parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
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

} // namespace tintra
