#pragma once

#include "palettes/image/Sampling.h"

#include <cstddef>
#include <span>

namespace tintra::ImagePalette {

/// What k-means came to.
struct Clusters {
    std::vector<Lab> centres; ///< in the order of the seeds
    /// For each sample, the index of its centre.
    std::vector<std::uint32_t> assignment;
};

/// The rounds after which clustering stops in any case.
inline constexpr int kMostRounds = 60;

/// Lloyd's k-means in OKLab from the given centres (at least one): each sample goes to the nearest
/// centre, the lower-numbered on a tie; each centre moves to the mean of its samples and stays
/// where it has none; until no sample changes, at most kMostRounds times. The samples are at most
/// 65,536 on the grid of `onSumGrid`.
///
/// Distances that cannot decide anything are not computed; the outcome is that of computing all of
/// them, to the last bit.
Clusters cluster(std::span<const Lab> samples, std::vector<Lab> centres);

} // namespace tintra::ImagePalette
