#pragma once

#include "platform/ColourList.h"

#include <optional>
#include <string>
#include <string_view>

// The two encodings of a colour list. Internal to the colour-list service.

namespace tintra::colourlist {

/// A keyed archive, as a binary or an XML property list.
std::optional<ColourList> readKeyedArchive(ByteView data);

/// An old archive ("streamtyped", "typedstream").
std::optional<ColourList> readTypedStream(ByteView data);

/// A catalogue colour holds a fallback colour, which may be one of a catalogue again.
inline constexpr int kMostFallbacks = 4;

/// A stored text as UTF-8; ill-formed bytes become U+FFFD.
std::string repairedUtf8(std::string_view text);

} // namespace tintra::colourlist
