#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QRectF>

namespace tintra {

/// A round glass beside a place of a picture, five times as large as the picture is shown.
struct Magnifier {
    QPointF place;  ///< in the view
    QRectF picture; ///< where the view shows the picture
    const QImage* detail = nullptr;
    QColor color; ///< of its ring: what is taken there

    /// Where the glass stands: 96 px above the place, or beneath where there is no room.
    QRectF rect() const;
    void paint(QPainter& painter) const;
};

} // namespace tintra
