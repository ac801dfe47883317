#include "mix/SpectralUpsampling.h"

#include <algorithm>
#include <limits>

namespace TintraMix::SpectralUpsampling {

namespace {

/// What a primary exceeds both others by, if it does.
double excess(double primary, double second, double third) {
    return std::max(0.0, std::min(primary - second, primary - third));
}

} // namespace

SpectralData::Spectrum reflectance(const SpectralData::Triple& linearRGB) {
    const auto& base = SpectralData::base;
    const double white = std::ranges::min(linearRGB);
    const double r = linearRGB[0] - white, g = linearRGB[1] - white, b = linearRGB[2] - white;
    const double cyan = std::min(g, b), magenta = std::min(r, b), yellow = std::min(r, g);
    const double red = excess(r, g, b), green = excess(g, r, b), blue = excess(b, r, g);
    SpectralData::Spectrum spectrum;
    for (std::size_t i = 0; i < spectrum.size(); ++i) {
        const double sum = white * base.white[i] + cyan * base.cyan[i] + magenta * base.magenta[i] +
                           yellow * base.yellow[i] + red * base.red[i] + green * base.green[i] +
                           blue * base.blue[i];
        spectrum[i] = std::max(sum, std::numeric_limits<double>::epsilon());
    }
    return spectrum;
}

} // namespace TintraMix::SpectralUpsampling
