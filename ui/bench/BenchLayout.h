#pragma once

#include "ui/shared/SwatchPainter.h"

#include <QRectF>
#include <QSizeF>
#include <cstddef>
#include <utility>
#include <vector>

namespace tintra {

/// Two columns by their places, the left one first.
using ColumnPair = std::pair<std::size_t, std::size_t>;

/// Where everything on the Bench stands. Pure figures.
struct BenchPlaces {
    QRectF group; ///< all columns
    SwatchShape shape = SwatchShape::column;
    std::vector<QRectF> columns;
    /// Between each column and the next; empty rectangles where there is no room.
    std::vector<QRectF> figures;
    /// Where a well can be made, a boundary each; empty where the pair has one.
    std::vector<QRectF> mixes;
    std::vector<QRectF> wells; ///< discs with their rims, in step with the pairs
    qreal width = 0;           ///< of the whole, margins included
    qreal clearTop = 0;        ///< what the figures take of a column, from its top

    qreal columnWidth() const { return columns.empty() ? 0 : columns.front().width(); }
};

/// Columns of equal width on whole pixels, on their side under 76 px and at least 40 px wide, so
/// that many are wider than `size`. `pairs` are what the wells mix; a well of neighbours stands on
/// their boundary, any other midway between its columns, where it covers as little as can be.
/// `words` px at the foot of a column are kept free as far as they can be.
BenchPlaces benchPlaces(std::size_t columns, const std::vector<ColumnPair>& pairs, QSizeF size,
                        qreal words);

} // namespace tintra
