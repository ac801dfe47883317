#pragma once

#include "palettes/PaletteLocation.h"
#include "palettes/PaletteSearch.h"
#include "state/Codec.h"

// How the values that only settings hold are written as JSON.

namespace tintra {

template <>
inline std::optional<ColourMatch> caseOfRaw(std::string_view raw) {
    return colourMatch(raw);
}

/// Base64.
template <>
struct Codec<Bytes> {
    static Json encode(const Bytes& value);
    static std::optional<Bytes> decode(const Json& json);
};

/// A location without an identifier or a path is none; what else is missing has its initial value.
template <>
struct Codec<PaletteLocation> {
    static Json encode(const PaletteLocation& value);
    static std::optional<PaletteLocation> decode(const Json& json);
};

} // namespace tintra
