#pragma once

#include "colour/Hsb.h"

#include <array>

namespace tintra {

using Matrix3 = std::array<std::array<double, 3>, 3>;

/// OKLab (Ottosson 2020): L 0...1 for colours of sRGB, a and b around 0.
struct Oklab {
    double L = 0, a = 0, b = 0;
};

/// OKLab in polar form: lightness 0...1, chroma from 0, hue in radians.
struct Oklch {
    double l = 0, c = 0, h = 0;
};

// clang-format off
/// Linear sRGB to LMS, first step of OKLab. Rows sum to 1 within 1e-9.
inline constexpr Matrix3 kRgbToLms{{
    {0.4122214708, 0.5363325363, 0.0514459929},
    {0.2119034982, 0.6806995451, 0.1073969566},
    {0.0883024619, 0.2817188376, 0.6299787005},
}};
/// Cube roots of LMS to OKLab.
inline constexpr Matrix3 kLmsToOklab{{
    {0.2104542553,  0.7936177850, -0.0040720468},
    {1.9779984951, -2.4285922050,  0.4505937099},
    {0.0259040371,  0.7827717662, -0.8086757660},
}};
/// OKLab to cube roots of LMS; the factor of L is 1.
inline constexpr Matrix3 kOklabToLms{{
    {1,  0.3963377774,  0.2158037573},
    {1, -0.1055613458, -0.0638541728},
    {1, -0.0894841775, -1.2914855480},
}};
/// LMS to linear sRGB, last step back.
inline constexpr Matrix3 kLmsToRgb{{
    { 4.0767416621, -3.3077115913,  0.2309699292},
    {-1.2684380046,  2.6097574011, -0.3413193965},
    {-0.0041960863, -0.7034186147,  1.7076147010},
}};
// clang-format on

/// OKLab of linear-light sRGB components (any finite values).
Oklab oklabFromLinear(const Rgb& linear);

/// Linear-light sRGB of OKLab, unclamped.
Rgb linearFromOklab(const Oklab& colour);

/// Hue by atan2(b, a), in -pi...pi.
Oklch oklchFromOklab(const Oklab& colour);

Oklab oklabFromOklch(const Oklch& colour);

} // namespace tintra
