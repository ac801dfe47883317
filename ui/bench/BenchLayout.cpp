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
    Placing(BenchPlaces& places, qreal top, qreal height)
        : places_(places), top_(top), height_(height),
          disc_(std::clamp(std::min(places.columnWidth() - kAround, height * 0.6), kLeastDisc,
                           kDisc)) {}

    void boundaries() {
        const bool narrow = places_.shape == SwatchShape::onSide;
        const auto wide = narrow ? kSmallFigureWidth : kFigureWidth;
        const auto mix = narrow ? kSmallMix : kMix;
        for (std::size_t i = 0; i + 1 < places_.columns.size(); ++i) {
            const QPointF middle(boundary(i), top_ + kMiddle * height_);
            places_.mixes.push_back(around(middle, mix, mix));
            const QRectF figure(middle.x() - wide / 2, top_ + kFigureTop, wide, kFigureHeight);
            places_.figures.push_back(height_ >= kLeastForFigures ? figure : QRectF());
        }
    }

    /// Those of neighbours first: they have their place, the others give way.
    void wells(const std::vector<ColumnPair>& pairs) {
        places_.wells.resize(pairs.size());
        for (std::size_t i = 0; i < pairs.size(); ++i) {
            const auto [left, right] = pairs[i];
            if (right != left + 1) continue;
            places_.wells[i] =
                around(QPointF(boundary(left), top_ + kMiddle * height_), disc_, disc_);
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

    /// Midway between two columns, moved up and down to where it covers least.
    QRectF free(const ColumnPair& pair) const {
        const auto x =
            (places_.columns[pair.first].center().x() + places_.columns[pair.second].center().x()) /
            2;
        static constexpr std::array kHeights{kMiddle, 0.66, 0.38, 0.76, 0.3};
        QRectF best;
        qreal least = -1;
        for (const auto at : kHeights) {
            const auto disc = around(QPointF(x, top_ + at * height_), disc_, disc_);
            const auto over = covered(disc, taken_);
            if (least >= 0 && over >= least) continue;
            best = disc;
            least = over;
        }
        return best;
    }

    BenchPlaces& places_;
    const qreal top_, height_, disc_;
    std::vector<QRectF> taken_;
};

} // namespace

BenchPlaces benchPlaces(std::size_t columns, const std::vector<ColumnPair>& pairs, QSizeF size) {
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
    Placing placing(places, kMargin, height);
    placing.boundaries();
    placing.wells(pairs);
    return places;
}

} // namespace tintra
