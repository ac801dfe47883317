#pragma once

#include "platform/ColourSpace.h"

#include <memory>
#include <optional>
#include <span>

// What a colour list says about a colour's space, as spaces of the platform. Internal to the
// colour-list service.

namespace tintra::colourlist {

using Space = std::shared_ptr<const ColourSpace>;

/// The kinds of colours without components of their own.
inline constexpr int kCatalogueColour = 6;

/// The space in which a colour is stored for every reader, by its number ("NSColorSpace" in keyed
/// archives, the first value of a colour in typed streams).
struct BasicSpace {
    int number;
    int components;
    const char* archiveKey; ///< where a keyed archive holds the values
    Space (*space)();
};

/// Null for catalogue colours, patterns and unknown numbers.
const BasicSpace* basicSpace(int number);

/// The space that an archived colour-space object names by "NSID" or "NSSpaceID"; null for unknown
/// numbers.
Space spaceOfId(std::uint64_t id);
Space spaceOfSpaceId(std::uint64_t spaceId);

/// A colour of `components` values and perhaps an alpha after them. Nothing for another count and
/// for values that are not finite. One level stored in an RGB space is its grey.
std::optional<PlatformColour> storedColour(const Space& space, int components,
                                           std::span<const double> values);

} // namespace tintra::colourlist
