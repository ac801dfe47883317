#pragma once

#include "palettes/image/Groups.h"

#include <span>

namespace tintra::ImagePalette {

/// How far two colours are apart to the eye that chooses a palette: squared, the chroma axes of
/// OKLab counting double.
double weightedDistance(const Lab& p, const Lab& q);

/// At most `count` of the candidates, in their order: first those of at least `chromaFloor` that
/// differ clearly from all taken before, then the rest, exact repeats left out.
std::vector<Group> distinct(std::size_t count, std::span<const Group> candidates,
                            double chromaFloor);

/// Gives the samples of every group that was not taken to the nearest taken one, so that the taken
/// groups stand for the whole picture. `all` holds the taken groups too.
void absorb(std::vector<Group>& taken, std::span<const Group> all);

} // namespace tintra::ImagePalette
