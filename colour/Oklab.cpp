#include "colour/Oklab.h"

#include "colour/CubeRoot.h"

#include <cmath>

namespace tintra {

namespace {

/// Row times column, summed from the left.
double dot(const std::array<double, 3>& row, double x, double y, double z) {
    return row[0] * x + row[1] * y + row[2] * z;
}

double cubed(double v) {
    return v * v * v;
}

} // namespace

Oklab oklabFromLinear(const Rgb& linear) {
    const auto& [r, g, b] = linear;
    const double l = cubeRoot(dot(kRgbToLms[0], r, g, b));
    const double m = cubeRoot(dot(kRgbToLms[1], r, g, b));
    const double s = cubeRoot(dot(kRgbToLms[2], r, g, b));
    return {dot(kLmsToOklab[0], l, m, s), dot(kLmsToOklab[1], l, m, s),
            dot(kLmsToOklab[2], l, m, s)};
}

Rgb linearFromOklab(const Oklab& colour) {
    const double l = cubed(dot(kOklabToLms[0], colour.L, colour.a, colour.b));
    const double m = cubed(dot(kOklabToLms[1], colour.L, colour.a, colour.b));
    const double s = cubed(dot(kOklabToLms[2], colour.L, colour.a, colour.b));
    return {dot(kLmsToRgb[0], l, m, s), dot(kLmsToRgb[1], l, m, s), dot(kLmsToRgb[2], l, m, s)};
}

Oklch oklchFromOklab(const Oklab& colour) {
    return {colour.L, std::sqrt(colour.a * colour.a + colour.b * colour.b),
            std::atan2(colour.b, colour.a)};
}

Oklab oklabFromOklch(const Oklch& colour) {
    return {colour.l, colour.c * std::cos(colour.h), colour.c * std::sin(colour.h)};
}

} // namespace tintra
