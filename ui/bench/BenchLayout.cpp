#include "ui/bench/BenchLayout.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tintra {
namespace {

constexpr qreal kMargin = 12, kWide = 76, kNarrowest = 40;
constexpr qreal kDisc = 120, kLeastDisc = 32, kAround = 8;
constexpr qreal kMix = 32, kSmallMix = 24;
constexpr qreal kFigureTop = 64, kFigureHeight = 24, kFigureWidth = 44, kSmallFigureWidth = 36;
constexpr qreal kLeastForFigures = 170; ///< height of the columns
constexpr qreal kMiddle = 0.52;         ///< of the height, where mixes stand
constexpr qreal kBadge = 32, kGap = 4;  ///< what a badge takes from the top

QRectF around(QPointF centre, qreal width, qreal height) {
    return QRectF(std::round(centre.x() - width / 2), std::round(centre.y() - height / 2), width,
                  height);
}

/// How much of a disc lies over others, as the square of the overlap of their circles.
qreal covered(const QRectF& disc, const std::vector<QRectF>& others) {
    qreal sum = 0;
    for (const auto& other : others) {
        const auto step = disc.center() - other.center();
        const auto apart = std::hypot(step.x(), step.y());
        const auto over = (disc.width() + other.width()) / 2 + kAround - apart;
        if (over > 0) sum += over * over;
    }
    return sum;
}

class Placing {
public:
    Placing(BenchPlaces& places, qreal top, qreal height, qreal words)
        : places_(places), top_(top), height_(height),
          isNarrow_(places.shape == SwatchShape::onSide), isLow_(height < kLeastForFigures),
          foot_(isNarrow_ ? height * 0.2 : words),
          disc_(std::clamp(std::min(places.columnWidth() - kAround, height - kBadge - foot_),
                           kLeastDisc, kDisc)) {}

    void boundaries() {
        const auto wide = isNarrow_ ? kSmallFigureWidth : kFigureWidth;
        const auto mix = isNarrow_ || isLow_ ? kSmallMix : kMix;
        places_.clearTop = isLow_ ? kBadge : kFigureTop + kFigureHeight + kGap;
        for (std::size_t i = 0; i + 1 < places_.columns.size(); ++i) {
            places_.mixes.push_back(onBoundary(i, mix));
            const QRectF figure(boundary(i) - wide / 2, top_ + kFigureTop, wide, kFigureHeight);
            places_.figures.push_back(isLow_ ? QRectF() : figure);
        }
    }

    /// Those of neighbours first: they have their place, the others give way.
    void wells(const std::vector<ColumnPair>& pairs) {
        places_.wells.resize(pairs.size());
        for (std::size_t i = 0; i < pairs.size(); ++i) {
            const auto [left, right] = pairs[i];
            if (right != left + 1) continue;
            places_.wells[i] = onBoundary(left, disc_);
            places_.mixes[left] = {};
            taken_.push_back(places_.wells[i]);
        }
        for (const auto& mix : places_.mixes)
            if (!mix.isEmpty()) taken_.push_back(mix);
        for (std::size_t i = 0; i < pairs.size(); ++i) {
            if (pairs[i].second == pairs[i].first + 1) continue;
            places_.wells[i] = free(pairs[i]);
            taken_.push_back(places_.wells[i]);
        }
    }

private:
    qreal boundary(std::size_t i) const { return places_.columns[i].right(); }

    /// A circle on a boundary, above the words beside it.
    QRectF onBoundary(std::size_t i, qreal size) const {
        const auto middle = std::min(kMiddle * height_, height_ - foot_ - size / 2);
        return around(QPointF(boundary(i), top_ + std::max(middle, size / 2)), size, size);
    }

    /// Midway between two columns, moved up and down to where it covers least.
    QRectF free(const ColumnPair& pair) const {
        const auto x =
            (places_.columns[pair.first].center().x() + places_.columns[pair.second].center().x()) /
            2;
        // Names on their side stand below the middle.
        static constexpr std::array kWideHeights{kMiddle, 0.66, 0.38, 0.76, 0.3},
            kNarrowHeights{0.38, 0.3, 0.66, 0.76, kMiddle};
        QRectF best;
        qreal least = -1;
        for (const auto at : isNarrow_ ? kNarrowHeights : kWideHeights) {
            const auto disc = around(QPointF(x, top_ + at * height_), disc_, disc_);
            const auto over = covered(disc, taken_);
            if (least >= 0 && over >= least) continue;
            best = disc;
            least = over;
        }
        return best;
    }

    BenchPlaces& places_;
    const qreal top_, height_;
    const bool isNarrow_, isLow_;
    const qreal foot_, disc_;
    std::vector<QRectF> taken_;
};

} // namespace

BenchPlaces benchPlaces(std::size_t columns, const std::vector<ColumnPair>& pairs, QSizeF size,
                        qreal words) {
    BenchPlaces places;
    if (columns == 0) return places;
    const auto count = static_cast<qreal>(columns);
    const auto room = std::max(std::floor(size.width()) - 2 * kMargin, count * kNarrowest);
    const auto height = std::max<qreal>(1, std::floor(size.height()) - 2 * kMargin);
    places.group = {kMargin, kMargin, room, height};
    places.width = room + 2 * kMargin;
    places.shape = room / count >= kWide ? SwatchShape::column : SwatchShape::onSide;
    const auto edge = [&](std::size_t i) {
        return kMargin + std::round(static_cast<qreal>(i) * room / count);
    };
    for (std::size_t i = 0; i < columns; ++i)
        places.columns.emplace_back(edge(i), kMargin, edge(i + 1) - edge(i), height);
    Placing placing(places, kMargin, height, words);
    placing.boundaries();
    placing.wells(pairs);
    return places;
}

} // namespace tintra
