#pragma once

#include <QFont>
#include <QPainter>
#include <QRectF>
#include <QString>

namespace tintra {

/// Draws text whose digits all take the width of the widest one, so that a changing number does not
/// jitter. Aligned within the rectangle.
void drawFigures(QPainter& painter, const QRectF& in, Qt::Alignment alignment, const QString& text);
/// How wide that is in a font, px.
qreal figuresWidth(const QFont& font, const QString& text);

} // namespace tintra
