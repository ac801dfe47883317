#pragma once

#include "mix/SpectralData.h"

#include <span>

/// Opaque layers of paint after Kubelka and Munk (1931), with one constant K/S, absorption over
/// scattering, a wavelength.
namespace TintraMix::KubelkaMunk {

/// One ingredient of a mixture.
struct Pigment {
    SpectralData::Spectrum reflectance; ///< above 0 everywhere
    double luminance = 0;               ///< CIE Y of the reflectance, above 0
    double factor = 0;                  ///< the amount, on any scale
};

/// CIE Y of a reflectance, raised to the machine epsilon at least.
double luminance(const SpectralData::Spectrum& reflectance);

/// The reflectance of the mixture. An ingredient weighs the square of its amount times its
/// luminance. At least one factor is above 0; without, every sample is NaN.
SpectralData::Spectrum mix(std::span<const Pigment> pigments);

} // namespace TintraMix::KubelkaMunk
