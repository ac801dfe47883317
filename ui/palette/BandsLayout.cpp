#include "ui/palette/BandsLayout.h"

#include <algorithm>
#include <cmath>

namespace tintra {
namespace {

constexpr int kMargin = 12, kMarginOfMany = 16; ///< from the edges of the canvas
constexpr int kGap = 12;                        ///< between bands
constexpr int kMoreMargin = 14;
constexpr int kLineGap = 4;      ///< between the lines of a band
constexpr int kNarrowest = 24;   ///< a cell, so that it can be hit
constexpr int kWide = 76;        ///< from here on codes stand upright
constexpr int kLowest = 56;      ///< a line of a band
constexpr int kHighEnough = 88;  ///< for a code on its side
constexpr int kLabelsFrom = 400; ///< the width that leaves room for labels at the left
constexpr int kLeastLabels = 60; ///< what those take at least

int edge(std::size_t i, std::size_t n, int length) {
    return static_cast<int>(std::lround(static_cast<double>(i) * length / static_cast<double>(n)));
}

/// What all bands of a harmony share.
struct Frame {
    int left = 0, right = 0, width = 0;
    std::size_t columns = 1, lines = 1; ///< of the longest band
};

Frame frameOf(std::size_t longest, int width, bool many, const BandMeasures& measures) {
    Frame frame;
    frame.left = frame.right = kMargin;
    if (many && width >= kLabelsFrom) {
        frame.left = std::max(kLeastLabels, measures.label + 2 * kMargin);
        frame.right = measures.more + 2 * kMoreMargin;
    } else if (many) {
        frame.right = std::max(measures.more, measures.label) + kLineGap * 2;
    }
    frame.width = std::max(1, width - frame.left - frame.right);
    const auto most = static_cast<std::size_t>(std::max(1, frame.width / kNarrowest));
    frame.lines = (longest + most - 1) / most;
    frame.columns = (longest + frame.lines - 1) / frame.lines;
    return frame;
}

/// What stands beside a band of many.
void placeLabel(BandPlace& band, int top, int height, const Frame& frame,
                const BandMeasures& measures) {
    const auto side = measures.more, right = frame.left + frame.width;
    const auto x = right + (frame.right - side) / 2;
    if (frame.left > kMargin) {
        band.label = QRectF(0, top, frame.left - kMargin, height);
        band.more = QRectF(x, top + (height - side) / 2, side, side);
        return;
    }
    const auto line = measures.labelLine;
    band.label = QRectF(right, top, frame.right, line);
    band.more = QRectF(x, top + line + (height - line - side) / 2, side, side);
}

BandPlace bandAt(int top, int height, std::size_t count, const Frame& frame) {
    BandPlace place;
    const auto gaps = static_cast<int>(frame.lines - 1) * kLineGap;
    for (std::size_t line = 0; line * frame.columns < count; ++line) {
        const auto above = edge(line, frame.lines, height - gaps);
        const auto below = edge(line + 1, frame.lines, height - gaps);
        const auto y = top + above + static_cast<int>(line) * kLineGap;
        const auto first = line * frame.columns, last = std::min(count, first + frame.columns);
        for (auto i = first; i < last; ++i) {
            const auto left = edge(i - first, frame.columns, frame.width);
            const auto right = edge(i - first + 1, frame.columns, frame.width);
            place.cells.emplace_back(frame.left + left, y, right - left, below - above);
        }
        place.lines.emplace_back(place.cells[first].topLeft(), place.cells.back().bottomRight());
    }
    return place;
}

SwatchShape shapeOf(const QRectF& cell) {
    if (cell.width() >= kWide) return SwatchShape::bandCell;
    return cell.height() >= kHighEnough ? SwatchShape::onSide : SwatchShape::cell;
}

} // namespace

BandPlaces bandPlaces(const std::vector<std::size_t>& counts, QSizeF size,
                      const BandMeasures& measures) {
    BandPlaces places;
    const auto longest = counts.empty() ? 0 : *std::max_element(counts.begin(), counts.end());
    if (longest == 0) return places;
    const bool many = counts.size() > 1;
    const auto width = static_cast<int>(size.width());
    const auto frame = frameOf(longest, width, many, measures);
    const auto margin = many && width >= kLabelsFrom ? kMarginOfMany : kMargin;
    const auto gaps = static_cast<int>(counts.size() - 1) * kGap;
    const auto lowest = std::max(kLowest, measures.labelLine + measures.more);
    const auto least = static_cast<int>(counts.size() * frame.lines) * lowest;
    const auto whole = std::max(static_cast<int>(size.height()) - 2 * margin - gaps, least);
    for (std::size_t i = 0; i < counts.size(); ++i) {
        const auto top = margin + edge(i, counts.size(), whole) + static_cast<int>(i) * kGap;
        const auto height = edge(i + 1, counts.size(), whole) - edge(i, counts.size(), whole);
        auto band = bandAt(top, height, counts[i], frame);
        if (many) placeLabel(band, top, height, frame, measures);
        places.bands.push_back(std::move(band));
    }
    places.shape = shapeOf(places.bands.front().cells.front());
    places.height = 2 * margin + gaps + whole;
    return places;
}

} // namespace tintra
