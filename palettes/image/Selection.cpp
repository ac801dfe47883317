#include "palettes/image/Selection.h"

#include "palettes/image/Distinct.h"

#include <algorithm>
#include <cmath>

namespace tintra::ImagePalette {

namespace {

/// Smaller groups are too small to be an accent.
constexpr double kLeastShare = 0.01;
/// Below this a colour is seen as a grey.
constexpr double kVividChroma = 0.07;

std::vector<Group> byPopulation(std::span<const Group> groups) {
    std::vector<Group> sorted(groups.begin(), groups.end());
    std::ranges::stable_sort(sorted, std::ranges::greater(), &Group::count);
    return sorted;
}

/// Chroma counts in full and share only by its fourth root, so that a strong accent of one percent
/// comes before a field of half its chroma.
double vividness(const Group& group, std::size_t total) {
    const double share = static_cast<double>(group.count) / static_cast<double>(total);
    return group.chroma * (0.5 + std::sqrt(std::sqrt(share)));
}

std::vector<Group> vibrant(std::size_t count, std::size_t total, std::span<const Group> groups) {
    const double least = kLeastShare * static_cast<double>(total);
    std::vector<Group> candidates;
    for (const auto& group : groups)
        if (static_cast<double>(group.count) >= least) candidates.push_back(group);
    if (candidates.size() < count) candidates.assign(groups.begin(), groups.end());
    std::ranges::stable_sort(candidates, std::ranges::greater(),
                             [&](const Group& group) { return vividness(group, total); });
    return distinct(count, candidates, kVividChroma);
}

/// The most common colour, then always the one farthest from all taken.
std::vector<Group> spreadOut(std::size_t count, std::span<const Group> groups) {
    const auto left = byPopulation(groups);
    std::vector<Group> taken;
    std::vector<double> apart(left.size(), HUGE_VAL); ///< negative once taken
    auto next = left.begin();
    while (taken.size() < count) {
        taken.push_back(*next);
        for (std::size_t i = 0; i < left.size(); ++i)
            apart[i] = std::min(apart[i], weightedDistance(left[i].mean, next->mean));
        apart[static_cast<std::size_t>(next - left.begin())] = -1;
        next = left.begin() + (std::ranges::max_element(apart) - apart.begin());
    }
    return taken;
}

} // namespace

std::vector<Group> select(std::size_t count, Emphasis emphasis, std::size_t total,
                          std::span<const Group> groups) {
    if (count >= groups.size()) return {groups.begin(), groups.end()};
    std::vector<Group> taken;
    switch (emphasis) {
    case Emphasis::dominant:
        taken = distinct(count, byPopulation(groups), 0);
        break;
    case Emphasis::vibrant:
        taken = vibrant(count, total, groups);
        break;
    case Emphasis::spread:
        taken = spreadOut(count, groups);
        break;
    }
    absorb(taken, groups);
    return taken;
}

} // namespace tintra::ImagePalette
