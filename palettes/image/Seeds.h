#pragma once

#include "palettes/image/Sampling.h"

#include <cstddef>
#include <span>

namespace tintra::ImagePalette {

/// At most `k` colours from which clustering starts: the means of the fullest cells of a grid over
/// OKLab, first those that lie apart, then the rest. Fewer when the samples fill fewer cells.
std::vector<Lab> seeds(std::span<const Lab> samples, std::size_t k);

} // namespace tintra::ImagePalette
