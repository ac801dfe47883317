#pragma once

#include <cmath>

namespace TintraMix {

/// sRGB component to linear light (IEC 61966-2-1), the sign kept, nothing clamped.
inline double decoded(double component) {
    const double v = std::abs(component);
    return std::copysign(v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4), component);
}

/// Linear light to sRGB component, the inverse of `decoded`.
inline double encoded(double linear) {
    const double v = std::abs(linear);
    return std::copysign(v <= 0.0031308 ? 12.92 * v : 1.055 * std::pow(v, 1 / 2.4) - 0.055, linear);
}

} // namespace TintraMix
