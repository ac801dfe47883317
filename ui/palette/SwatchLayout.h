#pragma once

#include "ui/shared/SwatchPainter.h"

#include <QRectF>
#include <QSizeF>
#include <cstddef>
#include <vector>

namespace tintra {

/// Where the swatches of a palette stand.
struct SwatchPlaces {
    std::vector<QRectF> rects; ///< in order
    SwatchShape shape = SwatchShape::column;
    std::vector<QRectF> groups; ///< that share a hairline and round corners; empty for tiles
    qreal height = 0;           ///< of the whole, margins included
};

/// Columns side by side, in as many equal rows as keep them 40 px wide; rows lower than 96 px make
/// the whole higher than `size`. Edges fall on whole pixels.
SwatchPlaces columnPlaces(std::size_t count, QSizeF size);
/// One swatch a line, as in narrow windows and beside a picture.
SwatchPlaces rowPlaces(std::size_t count, QSizeF size, int leastHeight);
/// Tiles of at least 140 by 120 px, with a place for one more at the end.
SwatchPlaces tilePlaces(std::size_t count, QSizeF size);

} // namespace tintra
