#include "ui/picture/Magnifier.h"

#include <QPainterPath>

namespace tintra {
namespace {

constexpr qreal kAway = 96, kSide = 112, kTimes = 5;
constexpr qreal kRing = 6;      ///< in the colour
constexpr qreal kOutside = 3.5; ///< white and black rings beyond it
constexpr qreal kMark = 8;      ///< of the place in the middle

} // namespace

QRectF Magnifier::rect() const {
    const bool fits = place.y() - kAway - kSide / 2 - kOutside >= 0;
    const QPointF middle(place.x(), place.y() + (fits ? -kAway : kAway));
    return {middle.x() - kSide / 2, middle.y() - kSide / 2, kSide, kSide};
}

void Magnifier::paint(QPainter& painter) const {
    const auto glass = rect();
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawEllipse(glass.adjusted(-kOutside, -kOutside, kOutside, kOutside));
    painter.setBrush(Qt::white);
    painter.drawEllipse(glass.adjusted(-2, -2, 2, 2));
    painter.setBrush(color);
    painter.drawEllipse(glass);
    const auto inside = glass.adjusted(kRing, kRing, -kRing, -kRing);
    QPainterPath round;
    round.addEllipse(inside);
    painter.setClipPath(round, Qt::IntersectClip);
    if (detail && !detail->isNull()) {
        const auto times = detail->width() / picture.width();
        const auto pixel = kTimes / times;
        painter.setRenderHint(QPainter::SmoothPixmapTransform, pixel < 4);
        const QPointF at = (place - picture.topLeft()) * times;
        const QSizeF part = inside.size() * times / kTimes;
        painter.drawImage(inside, *detail,
                          QRectF(at.x() - part.width() / 2, at.y() - part.height() / 2,
                                 part.width(), part.height()));
    }
    const QRectF mark(inside.center() - QPointF(kMark / 2, kMark / 2), QSizeF(kMark, kMark));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::black, 3));
    painter.drawRect(mark);
    painter.setPen(QPen(Qt::white, 1));
    painter.drawRect(mark);
    painter.restore();
}

} // namespace tintra
