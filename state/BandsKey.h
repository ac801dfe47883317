#pragma once

#include "colour/Harmony.h"

namespace tintra {

/// What the bands of a harmony are computed from.
struct BandsKey {
    WashColor first, last;
    HarmonyMode mode = HarmonyMode::paletteBuilder;
    int steps = 0, shades = 0;
    BlendSpace space = BlendSpace::sRGB;
    bool operator==(const BandsKey&) const = default;
};

} // namespace tintra
