#include "colour/Contrast.h"

#include <limits>

namespace tintra::Contrast {

namespace {

std::optional<int> lightestWithin(int from, int to, std::span<const int> among) {
    std::optional<int> found;
    for (const int weight : among)
        if (weight >= from && weight <= to && (!found || weight < *found)) found = weight;
    return found;
}

std::optional<int> heaviestUpTo(int to, std::span<const int> among) {
    std::optional<int> found;
    for (const int weight : among)
        if (weight <= to && (!found || weight > *found)) found = weight;
    return found;
}

} // namespace

std::optional<int> cssMatch(int desired, std::span<const int> among) {
    constexpr int kHeaviest = std::numeric_limits<int>::max();
    const auto lighter = heaviestUpTo(desired, among);
    const auto heavier = lightestWithin(desired, kHeaviest, among);
    if (desired < 400) return lighter ? lighter : heavier;
    if (desired > 500) return heavier ? heavier : lighter;
    // Regular and medium stand in for each other before anything lighter does.
    const auto upToMedium = lightestWithin(desired, 500, among);
    if (upToMedium) return upToMedium;
    return lighter ? lighter : heavier;
}

bool needsSyntheticBold(int desired, int used) {
    return desired >= 600 && used < 600;
}

} // namespace tintra::Contrast
