#include "palettes/readers/Reading.h"
#include "platform/ColourList.h"
#include "platform/Unicode.h"

#include <cmath>

namespace tintra::PaletteFile {

namespace {

/// The colour in extended sRGB, unclamped. Inks of no particular profile are those of the working
/// CMYK space.
std::optional<WashColor> colourOf(const PlatformColour& colour) {
    const bool isDeviceCmyk =
        colour.space->model() == ColourModel::cmyk && colour.space == ColourSpace::deviceCMYK();
    auto converted =
        isDeviceCmyk ? colourOfInks(colour.components) : WashColor::fromPlatform(colour);
    if (!converted) return std::nullopt;
    if (isDeviceCmyk) converted->a = colour.alpha;
    const bool isFinite =
        std::isfinite(converted->r) && std::isfinite(converted->g) && std::isfinite(converted->b);
    return isFinite ? converted : std::nullopt;
}

} // namespace

std::optional<std::vector<Swatch>> clr(ByteView data, LeftOut* leftOut) {
    const auto list = readColourList(data);
    if (!list) return std::nullopt;
    std::vector<Swatch> swatches;
    swatches.reserve(list->entries.size());
    for (const auto& entry : list->entries) {
        if (const auto colour = colourOf(entry.colour))
            // A key keeps its control characters; only white space at its ends goes.
            swatches.push_back({*colour, named(std::string(trimmed(entry.key)))});
        else
            note(leftOut, "a colour that cannot be converted");
    }
    note(leftOut, "without a colour that can be read", list->unusable);
    note(leftOut, kCutOff, list->missing);
    return unlessEmpty(std::move(swatches));
}

} // namespace tintra::PaletteFile
