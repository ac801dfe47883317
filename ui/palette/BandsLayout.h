#pragma once

#include "ui/shared/SwatchPainter.h"

#include <QRectF>
#include <QSizeF>
#include <cstddef>
#include <vector>

namespace tintra {

/// Where one band of a harmony stands.
struct BandPlace {
    /// At the left, above the button in narrow windows; empty for a band that stands alone.
    QRectF label;
    QRectF more;               ///< the button at the right; empty for a band that stands alone
    std::vector<QRectF> cells; ///< in order
    std::vector<QRectF> lines; ///< that share a hairline and round corners; mostly one
};

struct BandPlaces {
    std::vector<BandPlace> bands;
    SwatchShape shape = SwatchShape::bandCell;
    qreal height = 0; ///< of the whole, margins included
};

/// What the parts beside a band take at the text size chosen, px.
struct BandMeasures {
    int label = 32, labelLine = 20, more = 28;
};

/// Rows of equal height, each of equal cells. Cells narrower than 24 px go on in a further line of
/// their band; lines too low make the whole higher than `size`. Edges fall on whole pixels.
BandPlaces bandPlaces(const std::vector<std::size_t>& counts, QSizeF size,
                      const BandMeasures& measures);

} // namespace tintra
