#pragma once

#include "colour/Contrast.h"

#include <string_view>

// The lightness of a colour that is moved until a pair reads well. Pure; any thread.

namespace tintra::Contrast {

/// OKLCH lightness (0...1) of a colour.
double lightness(const WashColor& colour);

/// The colour at another lightness (0...1), in whole bytes of sRGB: hue and alpha stay, chroma as
/// far as sRGB goes.
WashColor atLightness(const WashColor& colour, double lightness);

/// The sentence for a side of a pair that reaches the target at no lightness.
std::string_view noReachText(Role role);

} // namespace tintra::Contrast
