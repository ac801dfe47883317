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

/// What a list held: its readable entries in list order, and how many had no usable colour.
struct ColourList {
    std::vector<ColourListEntry> entries;
    int unusable = 0;
};

/// Nothing when the bytes are no colour list. Any bytes are safe; cost is linear in their size.
std::optional<ColourList> readColourList(ByteView data);

/// A list of sRGB colours (extended range allowed) as a binary keyed archive. Keys must be unique.
/// Nothing when the archive cannot be built.
std::optional<Bytes> writeColourList(std::span<const ColourListEntry> entries);

} // namespace tintra
