#include "colour/Harmony.h"

#include "colour/Clamp.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tintra::Harmony {

namespace {

/// How far linear light may leave 0...1 and still count as sRGB.
constexpr double kGamutTolerance = 0.0001;

bool inGamut(const Rgb& linear) {
    const auto inside = [](double v) { return v >= -kGamutTolerance && v <= 1 + kGamutTolerance; };
    return inside(linear.r) && inside(linear.g) && inside(linear.b);
}

/// The largest chroma up to C that lies in sRGB at this lightness and hue, to 28 halvings.
double fittedChroma(double L, double C, double cosine, double sine) {
    const auto fits = [&](double chroma) {
        return inGamut(linearFromOklab({L, chroma * cosine, chroma * sine}));
    };
    if (fits(C)) return C;
    double low = 0, high = C;
    for (int round = 0; round < 28; ++round) {
        const double mid = (low + high) / 2;
        (fits(mid) ? low : high) = mid;
    }
    return low;
}

} // namespace

WashColor color(double L, double C, double h, double alpha) {
    const double cosine = std::cos(h), sine = std::sin(h);
    const double chroma = fittedChroma(L, C, cosine, sine);
    return WashColor::fromOklab({L, chroma * cosine, chroma * sine}, alpha);
}

} // namespace tintra::Harmony
