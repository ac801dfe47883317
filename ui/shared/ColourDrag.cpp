#include "ui/shared/ColourDrag.h"

#include "ui/shared/ColourMime.h"
#include "ui/shared/SwatchPainter.h"

#include <QDrag>
#include <QWidget>
#include <cmath>

namespace tintra {
namespace {

constexpr int kBadge = 32;

} // namespace

QPixmap prohibitedBadge(qreal ratio) {
    QPixmap badge(QSize(kBadge, kBadge) * ratio);
    badge.setDevicePixelRatio(ratio);
    badge.fill(Qt::transparent);
    QPainter painter(&badge);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 2));
    painter.setBrush(QColor(0x16, 0x16, 0x16));
    painter.drawEllipse(QRectF(1, 1, kBadge - 2, kBadge - 2));
    painter.setBrush(Qt::NoBrush);
    const QRectF ring(9, 9, kBadge - 18, kBadge - 18);
    painter.drawEllipse(ring);
    const auto reach = ring.width() / 2 * M_SQRT1_2;
    painter.drawLine(ring.center() - QPointF(reach, reach), ring.center() + QPointF(reach, reach));
    return badge;
}

void dragColour(QWidget& from, const SwatchPainter& painter, const Drag& dragged,
                const SwatchLook& look, QSize card) {
    const auto ratio = from.devicePixelRatioF();
    // Qt deletes it, also when the widget goes in the middle of the drag.
    auto* drag = new QDrag(&from);
    drag->setMimeData(mimeOf(dragged, look.code).release());
    drag->setPixmap(painter.card(look, card, ratio));
    drag->setHotSpot({30, 30});
    drag->setDragCursor(prohibitedBadge(ratio), Qt::IgnoreAction);
    const bool moves = std::holds_alternative<DragOfSwatch>(dragged.source);
    drag->exec(moves ? Qt::CopyAction | Qt::MoveAction : Qt::DropActions(Qt::CopyAction),
               Qt::CopyAction);
}

} // namespace tintra
