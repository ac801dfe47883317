#pragma once

#include "palettes/image/Groups.h"

namespace tintra::ImagePalette {

/// What groups are ordered by when they are shown, so that small differences of share do not mix up
/// light and dark and the hues.
struct Rank {
    int share = 0;     ///< fiftieths of the picture
    int lightness = 0; ///< tenths
    int hue = 0;       ///< sectors of 30 degrees from red, 0...11
    bool operator==(const Rank&) const = default;
};

Rank rank(const Group& group, std::size_t total);

/// Larger shares first, then lighter colours, then around the hue circle; the order of equals is
/// kept.
void sortByRank(std::vector<Group>& groups, std::size_t total);

} // namespace tintra::ImagePalette
