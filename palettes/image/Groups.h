#pragma once

#include "palettes/image/Clustering.h"

#include <cstddef>
#include <vector>

namespace tintra::ImagePalette {

/// Samples that belong together.
struct Group {
    Lab mean;
    std::size_t count = 0; ///< the samples it stands for
    double chroma = 0;     ///< of the mean
    /// The index of the sample where the group is shown: the one nearest to the mean, of equally
    /// near ones that nearest to the picture's middle.
    std::size_t sample = 0;
};

/// The clusters that have samples, in order.
std::vector<Group> groups(const Pixels& pixels, const Clusters& clusters);

} // namespace tintra::ImagePalette
