#include "palettes/SystemPalettes.h"

namespace tintra {

std::vector<PaletteFile::Swatch> webSafeColours() {
    constexpr int kSteps = 6;
    std::vector<PaletteFile::Swatch> swatches;
    swatches.reserve(std::size_t{kSteps} * kSteps * kSteps);
    for (int r = 0; r < kSteps; ++r)
        for (int g = 0; g < kSteps; ++g)
            for (int b = 0; b < kSteps; ++b)
                swatches.push_back({{r / 5.0, g / 5.0, b / 5.0, 1}, std::nullopt});
    return swatches;
}

} // namespace tintra
