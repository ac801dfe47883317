#pragma once

#include "mix/SpectralData.h"

namespace TintraMix::ReflectanceCIE {

/// OKLab (Ottosson 2020): L 0...1 for colours of sRGB, a and b around 0.
struct OKLab {
    double L = 0, a = 0, b = 0;
};

/// Of any finite XYZ under D65, outside the spectrum too, and back.
OKLab oklab(const SpectralData::Triple& xyz);
SpectralData::Triple xyz(const OKLab& colour);

/// The plain distance in OKLab.
double deltaE(const OKLab& one, const OKLab& other);

} // namespace TintraMix::ReflectanceCIE
