#include "palettes/PastedText.h"

#include "palettes/PasteColours.h"
#include "palettes/Stylesheet.h"

namespace tintra {

std::vector<PaletteFile::Swatch> coloursIn(std::string_view text) {
    if (Stylesheet::looksLikeStylesheet(text)) return Stylesheet::read(text);
    std::vector<PaletteFile::Swatch> swatches;
    for (const auto& colour : PasteColours::parse(text))
        swatches.push_back({colour, {}});
    return swatches;
}

} // namespace tintra
