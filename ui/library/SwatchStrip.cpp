#include "ui/library/SwatchStrip.h"

#include <algorithm>
#include <cmath>

namespace tintra {
namespace {

/// How much wider a matched swatch is, px.
constexpr qreal kMatchedMore = 44;
constexpr qreal kLeastRow = 4;

/// From the i-th of n equal parts of a length, in whole pixels.
qreal edge(qreal length, std::size_t i, std::size_t n) {
    return std::round(length * static_cast<qreal>(i) / static_cast<qreal>(n));
}

void addEven(std::vector<StripCell>& cells, const QRectF& in, std::size_t first,
             std::size_t count) {
    if (count == 0 || in.width() < 1) return;
    const auto shown = std::min(count, static_cast<std::size_t>(in.width()));
    for (std::size_t i = 0; i < shown; ++i) {
        const auto left = edge(in.width(), i, shown), right = edge(in.width(), i + 1, shown);
        cells.push_back({first + i * count / shown,
                         QRectF(in.left() + left, in.top(), right - left, in.height())});
    }
}

} // namespace

std::vector<StripCell> stripCells(const QRectF& in, std::size_t count,
                                  std::optional<std::size_t> matched) {
    std::vector<StripCell> cells;
    if (!matched || count == 0) {
        addEven(cells, in, 0, count);
        return cells;
    }
    const auto more = std::min(kMatchedMore, in.width() / 2);
    const auto wide = std::round((in.width() - more) / static_cast<qreal>(count) + more);
    const auto before = count > 1 ? std::round((in.width() - wide) * static_cast<qreal>(*matched) /
                                               static_cast<qreal>(count - 1))
                                  : 0;
    const QRectF place(in.left() + before, in.top(), wide, in.height());
    addEven(cells, QRectF(in.left(), in.top(), before, in.height()), 0, *matched);
    cells.push_back({*matched, place});
    addEven(cells, QRectF(QPointF(place.right(), in.top()), in.bottomRight()), *matched + 1,
            count - *matched - 1);
    return cells;
}

std::vector<StripCell> mosaicCells(const QRectF& in, std::size_t count) {
    const std::size_t columns = count <= 6 ? std::max<std::size_t>(count, 1) : count <= 16 ? 4 : 8;
    const auto most = static_cast<std::size_t>(in.height() / kLeastRow);
    const auto rows = std::min((count + columns - 1) / columns, most);
    std::vector<StripCell> cells;
    for (std::size_t row = 0; row < rows; ++row) {
        const auto top = edge(in.height(), row, rows), bottom = edge(in.height(), row + 1, rows);
        addEven(cells, QRectF(in.left(), in.top() + top, in.width(), bottom - top), row * columns,
                std::min(columns, count - row * columns));
    }
    return cells;
}

} // namespace tintra
