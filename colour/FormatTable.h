#pragma once

#include "colour/CodeTemplate.h"
#include "colour/ColorFormat.h"

#include <string_view>

namespace tintra {

/// The numbers that a format writes.
enum class Channels {
    none,
    rgb,   ///< red, green, blue as stored
    bytes, ///< red, green, blue as 0...255 in the selected RGB space
    hsb,   ///< each 0...1
    hsl,   ///< degrees, percent, percent
    oklch, ///< lightness 0...1, chroma, degrees
    cmyk   ///< each 0...1
};

/// All that is known of a code format.
struct FormatRow {
    ColorFormat::Case value;
    std::string_view raw, title;
    Channels channels;
    std::string_view over; ///< the denominator of fractions
    CodeTemplate code;
    CodeTemplate translucentCode = ""; ///< of colours below full alpha; empty where it is `code`
};

const FormatRow& rowOf(ColorFormat format);

} // namespace tintra
