#include "mix/ReflectanceCIE.h"

#include <cmath>

namespace TintraMix::ReflectanceCIE {

using namespace SpectralData::Conversion;

OKLab oklab(const SpectralData::Triple& xyz) {
    auto lms = SpectralData::apply(xyzToLMS, xyz);
    for (double& v : lms)
        v = std::cbrt(v);
    const auto lab = SpectralData::apply(lmsToLab, lms);
    return {lab[0], lab[1], lab[2]};
}

SpectralData::Triple xyz(const OKLab& colour) {
    auto lms = SpectralData::apply(labToLMS, SpectralData::Triple{colour.L, colour.a, colour.b});
    for (double& v : lms)
        v = v * v * v;
    return SpectralData::apply(lmsToXYZ, lms);
}

double deltaE(const OKLab& one, const OKLab& other) {
    const double L = one.L - other.L, a = one.a - other.a, b = one.b - other.b;
    return std::sqrt(L * L + a * a + b * b);
}

} // namespace TintraMix::ReflectanceCIE
