#include "colour/NameScan.h"

#include <algorithm>
#include <array>
#include <limits>

// The loops are written for the optimiser to turn into vectors of whatever width the function's
// target has. Every distance is computed by the same operations in the same order in all of them,
// and a minimum is exact, so the vectors change nothing about the answers.

namespace tintra {

namespace {

constexpr double kFarthest = std::numeric_limits<double>::infinity();
constexpr std::size_t kLanes = 16;
/// Short enough to stay in the first-level cache when a block is looked at again.
constexpr std::size_t kBlock = 32 * kLanes;

[[gnu::always_inline]] inline double distance(const OklabColumns& colours, std::size_t i,
                                              const Oklab& target) {
    const double dL = colours.L[i] - target.L;
    const double da = colours.a[i] - target.a;
    const double db = colours.b[i] - target.b;
    return dL * dL + da * da + db * db;
}

/// The smallest distance in [begin, end); NaN never is.
[[gnu::always_inline]] inline double smallestIn(const OklabColumns& colours, const Oklab& target,
                                                std::size_t begin, std::size_t end) {
    std::array<double, kLanes> lanes;
    lanes.fill(kFarthest);
    std::size_t i = begin;
    for (; i + kLanes <= end; i += kLanes)
        for (std::size_t lane = 0; lane < kLanes; ++lane) {
            const double d = distance(colours, i + lane, target);
            lanes[lane] = d < lanes[lane] ? d : lanes[lane];
        }
    for (; i < end; ++i)
        lanes[0] = std::min(lanes[0], distance(colours, i, target));
    return *std::min_element(lanes.begin(), lanes.end());
}

[[gnu::always_inline]] inline std::size_t firstAt(double wanted, const OklabColumns& colours,
                                                  const Oklab& target, std::size_t begin) {
    while (distance(colours, begin, target) != wanted)
        ++begin;
    return begin;
}

[[gnu::always_inline]] inline std::size_t scan(const OklabColumns& colours, const Oklab& target) {
    double best = kFarthest;
    std::size_t place = 0;
    for (std::size_t begin = 0; begin < colours.L.size() && best > 0; begin += kBlock) {
        const auto end = std::min(begin + kBlock, colours.L.size());
        const double smallest = smallestIn(colours, target, begin, end);
        if (smallest < best) {
            best = smallest;
            place = firstAt(smallest, colours, target, begin);
        }
    }
    return place;
}

std::size_t plainScan(const OklabColumns& colours, const Oklab& target) {
    return scan(colours, target);
}

#ifdef __x86_64__

[[gnu::target("avx2")]] std::size_t avx2Scan(const OklabColumns& colours, const Oklab& target) {
    return scan(colours, target);
}

constexpr std::array<NameScanVariant, 2> kScans{{{"AVX2", avx2Scan}, {"any", plainScan}}};

std::size_t unusableScans() {
    return __builtin_cpu_supports("avx2") ? 0 : 1;
}

#else

constexpr std::array<NameScanVariant, 1> kScans{{{"any", plainScan}}};

std::size_t unusableScans() {
    return 0;
}

#endif

} // namespace

std::span<const NameScanVariant> nameScans() {
    return std::span(kScans).subspan(unusableScans());
}

} // namespace tintra
