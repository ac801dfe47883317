#include "colour/Lab.h"

#include "colour/Clamp.h"
#include "colour/Oklab.h"
#include "platform/SrgbCurve.h"

#include <cmath>

namespace tintra {

namespace {

/// Linear sRGB to XYZ and back, and the white that L*a*b* is relative to (Yn is 1).
struct LabWhite {
    Matrix3 rgbToXyz;
    double xn, zn;
    Matrix3 xyzToRgb;
};

// clang-format off
constexpr LabWhite kD50White{{{
    {0.4360747, 0.3850649, 0.1430804},
    {0.2225045, 0.7168786, 0.0606169},
    {0.0139322, 0.0971045, 0.7141733},
}}, 0.96422, 0.82521, {{
    { 3.1338561, -1.6168667, -0.4906146},
    {-0.9787684,  1.9161415,  0.0334540},
    { 0.0719453, -0.2289914,  1.4052427},
}}};
constexpr LabWhite kD65White{{{
    {0.4124564, 0.3575761, 0.1804375},
    {0.2126729, 0.7151522, 0.0721750},
    {0.0193339, 0.1191920, 0.9503041},
}}, 0.95047, 1.08883, {{
    { 3.2404542, -1.5371385, -0.4985314},
    {-0.9692660,  1.8760108,  0.0415560},
    { 0.0556434, -0.2040259,  1.0572252},
}}};
// clang-format on

// CIE 15:2004, as fractions: (6/29)^3 and (29/3)^3.
constexpr double kEpsilon = 216.0 / 24389;
constexpr double kKappa = 24389.0 / 27;

double compressed(double t) {
    return t > kEpsilon ? std::cbrt(t) : (t * kKappa + 16) / 116;
}

double expanded(double f) {
    const double cube = f * f * f;
    return cube > kEpsilon ? cube : (116 * f - 16) / kKappa;
}

const LabWhite& whiteOf(LabIlluminant illuminant) {
    return illuminant == LabIlluminant::d50 ? kD50White : kD65White;
}

} // namespace

Lab labFromLinear(const Rgb& linear, LabIlluminant illuminant) {
    const auto& white = whiteOf(illuminant);
    const auto xyz = [&](int row) {
        const auto& m = white.rgbToXyz[static_cast<std::size_t>(row)];
        return m[0] * linear.r + m[1] * linear.g + m[2] * linear.b;
    };
    const double fx = compressed(xyz(0) / white.xn);
    const double fy = compressed(xyz(1));
    const double fz = compressed(xyz(2) / white.zn);
    return {116 * fy - 16, 500 * (fx - fy), 200 * (fy - fz)};
}

Rgb linearFromLab(const Lab& colour, LabIlluminant illuminant) {
    const auto& white = whiteOf(illuminant);
    const double fy = (colour.L + 16) / 116;
    const double x = expanded(fy + colour.a / 500) * white.xn;
    const double y = expanded(fy);
    const double z = expanded(fy - colour.b / 200) * white.zn;
    const auto channel = [&](const std::array<double, 3>& m) {
        return m[0] * x + m[1] * y + m[2] * z;
    };
    return {channel(white.xyzToRgb[0]), channel(white.xyzToRgb[1]), channel(white.xyzToRgb[2])};
}

Rgb rgbFromLabD50(const Lab& colour) {
    const auto linear = linearFromLab(colour, LabIlluminant::d50);
    return {clampedUnit(srgbEncoded(linear.r)), clampedUnit(srgbEncoded(linear.g)),
            clampedUnit(srgbEncoded(linear.b))};
}

} // namespace tintra
