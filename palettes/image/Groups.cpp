#include "palettes/image/Groups.h"

#include <cmath>
#include <cstdint>
#include <tuple>

namespace tintra::ImagePalette {

namespace {

/// How well a sample shows a group; less is better.
struct Fit {
    double fromMean = 0;
    std::uint64_t fromMiddle = 0; ///< squared, in halves of a reduced pixel
    bool operator<(const Fit& other) const {
        return std::tie(fromMean, fromMiddle) < std::tie(other.fromMean, other.fromMiddle);
    }
};

std::uint64_t fromMiddle(const Pixels& pixels, std::size_t sample) {
    const auto width = std::int64_t{pixels.reduced.width},
               height = std::int64_t{pixels.reduced.height};
    const std::int64_t place = pixels.places[sample];
    const auto x = 2 * (place % width) + 1 - width, y = 2 * (place / width) + 1 - height;
    return static_cast<std::uint64_t>(x * x + y * y);
}

} // namespace

std::vector<Group> groups(const Pixels& pixels, const Clusters& clusters) {
    std::vector<Group> made(clusters.centres.size());
    std::vector<Fit> best(made.size());
    for (std::size_t i = 0; i < pixels.samples.size(); ++i) {
        const auto index = clusters.assignment[i];
        auto& group = made[index];
        const Fit fit{squaredDistance(pixels.samples[i], clusters.centres[index]),
                      fromMiddle(pixels, i)};
        if (group.count++ > 0 && !(fit < best[index])) continue;
        best[index] = fit;
        group.sample = i;
    }
    for (std::size_t j = 0; j < made.size(); ++j) {
        made[j].mean = clusters.centres[j];
        made[j].chroma = std::hypot(made[j].mean.a, made[j].mean.b);
    }
    std::erase_if(made, [](const Group& group) { return group.count == 0; });
    return made;
}

} // namespace tintra::ImagePalette
