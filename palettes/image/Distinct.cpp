#include "palettes/image/Distinct.h"

#include <algorithm>

namespace tintra::ImagePalette {

namespace {

/// Colours are told apart from a weighted distance of 0.14, squared.
constexpr double kDistinct = 0.0196;

bool sameColour(const Group& p, const Group& q) {
    return p.mean.L == q.mean.L && p.mean.a == q.mean.a && p.mean.b == q.mean.b;
}

/// Groups are told by the sample they are shown at: no two share one.
bool holds(std::span<const Group> groups, const Group& group) {
    return std::ranges::find(groups, group.sample, &Group::sample) != groups.end();
}

} // namespace

double weightedDistance(const Lab& p, const Lab& q) {
    const double L = p.L - q.L, a = 2 * (p.a - q.a), b = 2 * (p.b - q.b);
    return L * L + a * a + b * b;
}

std::vector<Group> distinct(std::size_t count, std::span<const Group> candidates,
                            double chromaFloor) {
    std::vector<Group> taken;
    const auto differs = [&](const Group& group) {
        return std::ranges::all_of(taken, [&](const Group& other) {
            return weightedDistance(group.mean, other.mean) >= kDistinct;
        });
    };
    for (const auto& group : candidates)
        if (taken.size() < count && group.chroma >= chromaFloor && differs(group))
            taken.push_back(group);
    const auto repeats = [&](const Group& group) {
        return std::ranges::any_of(taken,
                                   [&](const Group& other) { return sameColour(group, other); });
    };
    for (const auto& group : candidates)
        if (taken.size() < count && !repeats(group)) taken.push_back(group);
    return taken;
}

void absorb(std::vector<Group>& taken, std::span<const Group> all) {
    if (taken.empty()) return;
    std::vector<std::size_t> more(taken.size());
    for (const auto& group : all) {
        if (holds(taken, group)) continue;
        const auto nearest = std::ranges::min_element(taken, {}, [&](const Group& other) {
            return weightedDistance(group.mean, other.mean);
        });
        more[static_cast<std::size_t>(nearest - taken.begin())] += group.count;
    }
    for (std::size_t i = 0; i < taken.size(); ++i)
        taken[i].count += more[i];
}

} // namespace tintra::ImagePalette
