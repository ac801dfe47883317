#include "ui/palette/DragHandle.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

namespace tintra {

DragHandle::DragHandle(QWidget* parent) : QWidget(parent) {
    setCursor(Qt::OpenHandCursor);
}

void DragHandle::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (paint) paint(painter, rect());
}

void DragHandle::mousePressEvent(QMouseEvent* event) {
    pressedAt_ = event->pos();
}

void DragHandle::mouseMoveEvent(QMouseEvent* event) {
    const auto far = (event->pos() - pressedAt_).manhattanLength();
    if ((event->buttons() & Qt::LeftButton) && far >= QApplication::startDragDistance() && drag)
        drag();
}

} // namespace tintra
