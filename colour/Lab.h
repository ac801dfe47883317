#pragma once

#include "colour/Hsb.h"

#include <string_view>

namespace tintra {

/// The white that Lab values are relative to.
enum class LabIlluminant { d50, d65 };

/// CIE L*a*b*: L 0...100 for colours of sRGB.
struct Lab {
    double L = 0, a = 0, b = 0;
};

/// Lab of linear-light sRGB components (any finite values). The D50 matrix is adapted from D65 by
/// Bradford.
Lab labFromLinear(const Rgb& linear, LabIlluminant illuminant);

/// Linear-light sRGB of a Lab colour, unclamped: the inverse of `labFromLinear`.
Rgb linearFromLab(const Lab& colour, LabIlluminant illuminant);

/// Gamma-encoded sRGB of a Lab colour under D50, clamped to 0...1 per channel.
Rgb rgbFromLabD50(const Lab& colour);

} // namespace tintra
