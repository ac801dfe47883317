#pragma once

#include <cmath>

namespace tintra {

/// sRGB transfer function (IEC 61966-2-1), encoded to linear light, mirrored at zero so that
/// extended-range components keep their sign.
inline double srgbDecoded(double encoded) {
    const double v = std::abs(encoded);
    const double linear = v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    return std::copysign(linear, encoded);
}

/// The inverse of `srgbDecoded`: linear light to encoded, the sign kept.
inline double srgbEncoded(double linear) {
    const double v = std::abs(linear);
    const double encoded =
        v <= 0.0031308 ? v * 12.92 : 1.055 * std::pow(v, 0.4166666666666667) - 0.055;
    return std::copysign(encoded, linear);
}

} // namespace tintra
