#include "ui/palette/SwatchLayout.h"

#include <algorithm>
#include <cmath>

namespace tintra {
namespace {

constexpr int kMargin = 12; ///< of the swatches from the edges of the canvas
constexpr int kGap = 12;    ///< between rows of columns, and between tiles
constexpr int kWide = 76;   ///< from here on a column has its words upright
constexpr int kNarrowest = 40;
constexpr int kLowest = 96; ///< a row of columns
constexpr int kTileWidth = 140, kTileHeight = 120, kTilesMargin = 16;

/// The edge before the i-th of n parts of a length.
int edge(std::size_t i, std::size_t n, int length) {
    return static_cast<int>(std::lround(static_cast<double>(i) * length / static_cast<double>(n)));
}

} // namespace

SwatchPlaces columnPlaces(std::size_t count, QSizeF size) {
    SwatchPlaces places;
    const auto width = static_cast<int>(size.width()) - 2 * kMargin;
    if (count == 0 || width < 1) return places;
    const auto perRow = std::clamp<std::size_t>(
        static_cast<std::size_t>(std::max(1, width / kNarrowest)), 1, count);
    const auto rows = (count + perRow - 1) / perRow;
    const auto columns = (count + rows - 1) / rows;
    places.shape =
        width / static_cast<int>(columns) >= kWide ? SwatchShape::column : SwatchShape::onSide;
    const auto gaps = static_cast<int>(rows - 1) * kGap;
    const auto room = static_cast<int>(size.height()) - 2 * kMargin - gaps;
    const auto whole = std::max(room, rows > 1 ? static_cast<int>(rows) * kLowest : 1);
    for (std::size_t row = 0; row < rows; ++row) {
        const auto top = kMargin + edge(row, rows, whole) + static_cast<int>(row) * kGap;
        const auto height = edge(row + 1, rows, whole) - edge(row, rows, whole);
        const auto first = row * columns, last = std::min(count, first + columns);
        // A last row that is not full keeps the width of the others.
        for (auto i = first; i < last; ++i) {
            const auto left = edge(i - first, columns, width);
            const auto right = edge(i - first + 1, columns, width);
            places.rects.emplace_back(kMargin + left, top, right - left, height);
        }
        places.groups.push_back(
            QRectF(places.rects[first].topLeft(), places.rects[last - 1].bottomRight()));
    }
    places.height = 2 * kMargin + gaps + whole;
    return places;
}

SwatchPlaces rowPlaces(std::size_t count, QSizeF size, int leastHeight) {
    SwatchPlaces places;
    places.shape = SwatchShape::row;
    const auto width = static_cast<int>(size.width()) - 2 * kMargin;
    if (count == 0 || width < 1) return places;
    const auto room = static_cast<int>(size.height()) - 2 * kMargin;
    const auto whole = std::max(room, static_cast<int>(count) * leastHeight);
    for (std::size_t i = 0; i < count; ++i) {
        const auto top = edge(i, count, whole), bottom = edge(i + 1, count, whole);
        places.rects.emplace_back(kMargin, kMargin + top, width, bottom - top);
    }
    places.groups.emplace_back(kMargin, kMargin, width, whole);
    places.height = whole + 2 * kMargin;
    return places;
}

SwatchPlaces tilePlaces(std::size_t count, QSizeF size) {
    SwatchPlaces places;
    places.shape = SwatchShape::tile;
    const auto width = static_cast<int>(size.width()) - 2 * kTilesMargin;
    if (width < 1) return places;
    const auto perRow = static_cast<std::size_t>(std::max(1, (width + kGap) / (kTileWidth + kGap)));
    const auto gaps = static_cast<int>(perRow - 1) * kGap;
    const auto side = (width - gaps) / static_cast<int>(perRow);
    const auto height = std::max(kTileHeight, side * 6 / 7);
    for (std::size_t i = 0; i <= count; ++i) {
        const auto column = static_cast<int>(i % perRow), row = static_cast<int>(i / perRow);
        places.rects.emplace_back(kTilesMargin + column * (side + kGap),
                                  kTilesMargin + row * (height + kGap), side, height);
    }
    places.height = places.rects.back().bottom() + kTilesMargin;
    return places;
}

} // namespace tintra
