#pragma once

#include <array>

namespace tintra::cmyk {

using Vec3 = std::array<double, 3>;
using Mat3 = std::array<Vec3, 3>;

/// CIE XYZ under D50, with Y = 1 for the reference white.
using Xyz = Vec3;

/// The white of the profile connection space (ICC.1, the D50 illuminant), Y = 1.
inline constexpr Xyz kD50{0.9642, 1.0, 0.8249};

/// CIELAB against D50: l from 0 to 100, a and b in the same unit, unbounded.
struct Lab {
    double l = 0;
    double a = 0;
    double b = 0;
};

/// CIE 15 conversions between XYZ and CIELAB; each is the inverse of the other, for all finite
/// values (the straight part near black carries on below zero).
[[nodiscard]] Xyz xyzFromLab(const Lab& lab);
[[nodiscard]] Lab labFromXyz(const Xyz& xyz);

/// OKLab (B. Ottosson 2020, "A perceptual color space for image processing") of a D50 colour, with
/// its derivative: byXyz[i][j] is the change of component i for a change of XYZ component j.
struct OkLabSlope {
    Vec3 value{};
    Mat3 byXyz{};
};

/// The colour is adapted from D50 to D65 by Bradford. Components of XYZ may be negative.
[[nodiscard]] OkLabSlope okLabFromXyz(const Xyz& xyz);

} // namespace tintra::cmyk
