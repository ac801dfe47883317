#pragma once

#include <QRectF>
#include <cstddef>
#include <optional>
#include <vector>

// Where the swatches of a palette stand when it is shown as a whole. Pure. Edges are whole pixels,
// so that neighbours abut.

namespace tintra {

/// A swatch and its place.
struct StripCell {
    std::size_t swatch = 0;
    QRectF rect;
};

/// Side by side; of more swatches than pixels some are left out. The matched one, if any, is wider.
std::vector<StripCell> stripCells(const QRectF& in, std::size_t count,
                                  std::optional<std::size_t> matched = {});

/// One row of up to 6, rows of 4 of up to 16, else rows of 8; the last row is stretched. Of more
/// rows than can be told apart the first are shown.
std::vector<StripCell> mosaicCells(const QRectF& in, std::size_t count);

} // namespace tintra
