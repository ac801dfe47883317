#pragma once

#include "mix/SpectralData.h"

namespace TintraMix::SpectralUpsampling {

/// A smooth reflectance that looks like the colour under D65 (the construction of Smits, "An
/// RGB-to-Spectrum Conversion for Reflectances", 1999). No sample is below the machine epsilon:
/// the mixing divides by them, and how black mixes hinges on that very figure.
SpectralData::Spectrum reflectance(const SpectralData::Triple& linearRGB);

} // namespace TintraMix::SpectralUpsampling
