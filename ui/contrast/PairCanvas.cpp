#include "ui/contrast/PairCanvas.h"

#include "state/Models.h"
#include "ui/contrast/ContrastDrops.h"

#include <QDropEvent>
#include <QPainter>

namespace tintra {

PairCanvas::PairCanvas(Ui& ui, QWidget* parent)
    : Canvas(ui.theme, parent), ui_(ui), board_(ui.models.contrast()) {
    setAcceptDrops(true);
}

QRectF PairCanvas::half(Role role) const {
    const auto middle = width() / 2.0;
    return role == Role::text ? QRectF(0, 0, middle, height())
                              : QRectF(middle, 0, width() - middle, height());
}

PairCanvas::Role PairCanvas::roleAt(QPointF place) const {
    return place.x() < width() / 2.0 ? Role::text : Role::ground;
}

void PairCanvas::setOver(std::optional<Role> role) {
    if (role == over_) return;
    over_ = role;
    update();
}

void PairCanvas::paintOverlay(QPainter& painter) {
    constexpr qreal kRing = 3;
    if (!over_) return;
    painter.setPen(QPen(ringInk(), kRing));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(half(*over_).adjusted(kRing / 2, kRing / 2, -kRing / 2, -kRing / 2),
                            metrics::kGroupRadius, metrics::kGroupRadius);
}

void PairCanvas::dragEnterEvent(QDragEnterEvent* event) {
    if (isForContrast(*event->mimeData())) event->acceptProposedAction();
}

void PairCanvas::dragMoveEvent(QDragMoveEvent* event) {
    event->acceptProposedAction();
    setOver(roleAt(event->position()));
}

void PairCanvas::dragLeaveEvent(QDragLeaveEvent*) {
    setOver(std::nullopt);
}

void PairCanvas::dropEvent(QDropEvent* event) {
    setOver(std::nullopt);
    event->acceptProposedAction();
    receiveInContrast(ui_, dropped(*event->mimeData()), roleAt(event->position()));
}

} // namespace tintra
