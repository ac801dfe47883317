#include "palettes/image/Ranking.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tintra::ImagePalette {

namespace {

int hueSector(const Lab& colour) {
    const double angle = std::atan2(colour.b, colour.a) * 180 / std::numbers::pi;
    const double degrees = angle < 0 ? angle + 360 : angle;
    // The least negative angle rounds to the full turn.
    return static_cast<int>(degrees) / 30 % 12;
}

bool comesBefore(const Rank& p, const Rank& q) {
    if (p.share != q.share) return p.share > q.share;
    if (p.lightness != q.lightness) return p.lightness > q.lightness;
    return p.hue < q.hue;
}

} // namespace

Rank rank(const Group& group, std::size_t total) {
    const double share = static_cast<double>(group.count) / static_cast<double>(total);
    return {static_cast<int>(std::round(share * 50)),
            static_cast<int>(std::round(group.mean.L * 10)), hueSector(group.mean)};
}

void sortByRank(std::vector<Group>& groups, std::size_t total) {
    std::ranges::stable_sort(groups, comesBefore,
                             [&](const Group& group) { return rank(group, total); });
}

} // namespace tintra::ImagePalette
