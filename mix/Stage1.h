#pragma once

#include "mix/SpectralData.h"
#include "mix/TintraMix.h"

/// The recipe of a mix: the two colours, then white and black paint.
namespace TintraMix::Stage1 {

/// Black paint reflects 2 % everywhere.
inline constexpr auto blackReflectance = [] {
    SpectralData::Spectrum spectrum{};
    spectrum.fill(0.02);
    return spectrum;
}();

/// CIE Y of the two paints, about 1 and 0.02.
double whiteLuminance();
double blackLuminance();

/// As `TintraMix::mix`.
SRGB mix(const SRGB& a, const SRGB& b, double t, double white, double black);

} // namespace TintraMix::Stage1
