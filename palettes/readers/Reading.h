#pragma once

#include "palettes/PaletteFile.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What the readers of palette files share. Internal to them.

namespace tintra::PaletteFile {

/// `kept` of a text that is there.
std::optional<std::string> keptText(std::string text);

/// A text as a name: nothing when it is empty or "Untitled" in any case.
std::optional<std::string> named(std::string trimmedText);

/// A colour of cyan, magenta, yellow and black, brought into 0...1, in the working CMYK space;
/// nothing when that space has not four components or refuses the conversion.
std::optional<WashColor> colourOfInks(Components inks);

inline constexpr std::string_view kInksRefused = "inks that the CMYK profile does not convert";
inline constexpr std::string_view kCutOff = "cut off at the end of the file";

inline void note(LeftOut* leftOut, std::string_view reason, int count = 1) {
    if (leftOut != nullptr) leftOut->add(reason, count);
}

/// A palette without a swatch is none.
inline std::optional<std::vector<Swatch>> unlessEmpty(std::vector<Swatch> swatches) {
    if (swatches.empty()) return std::nullopt;
    return swatches;
}

} // namespace tintra::PaletteFile
