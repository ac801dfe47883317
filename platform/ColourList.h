#pragma once

#include "platform/Bytes.h"
#include "platform/ColourSpace.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

// Colour lists of the system colour picker (.clr), as the platform's list service would open and
// save them. Both encodings are read (keyed archives as binary or XML property lists, typed
// streams); keyed archives are written.

namespace tintra {

/// A colour of a list under its key.
struct ColourListEntry {
    std::string key; ///< UTF-8, as stored; may be cut at U+0000
    PlatformColour colour;
};

/// What a list held: its readable entries in list order, how many had no usable colour or key, and
/// how many the list announces but does not hold.
struct ColourList {
    std::vector<ColourListEntry> entries;
    int unusable = 0;
    int missing = 0;
};

/// Nothing when the bytes are no colour list, or more than 16 MB. Any bytes are safe; cost is
/// linear in their size. Inks of no particular profile are given in `ColourSpace::deviceCMYK`.
std::optional<ColourList> readColourList(ByteView data);

/// A list of sRGB colours (extended range allowed) as a binary keyed archive; colours of other
/// spaces are converted. Keys must be unique. Nothing when a colour has no finite sRGB value or the
/// archive cannot be built. The encoder's table of values is small, so cost grows faster than the
/// list: 5,000 colours take 0.04 s, 40,000 take 2.6 s.
std::optional<Bytes> writeColourList(std::span<const ColourListEntry> entries);

} // namespace tintra
