#include "colour/ChromaFit.h"

#include <cmath>

namespace tintra {

HueDirection HueDirection::of(double radians) {
    return {std::cos(radians), std::sin(radians)};
}

double fittedChroma(double lightness, double chroma, const HueDirection& hue, const GamutFit& fit) {
    const auto within = [&](double v) { return v >= -fit.tolerance && v <= 1 + fit.tolerance; };
    const auto inGamut = [&](double c) {
        const auto linear = linearFromOklab(hue.at(lightness, c));
        return within(linear.r) && within(linear.g) && within(linear.b);
    };
    if (inGamut(chroma)) return chroma;
    double low = 0, high = chroma;
    for (int round = 0; round < fit.halvings; ++round) {
        const double mid = (low + high) / 2;
        (inGamut(mid) ? low : high) = mid;
    }
    return low;
}

} // namespace tintra
