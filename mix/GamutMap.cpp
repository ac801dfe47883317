#include "mix/GamutMap.h"

#include "mix/ReflectanceCIE.h"

#include <algorithm>
#include <cmath>

namespace TintraMix::GamutMap {

namespace {

using ReflectanceCIE::deltaE;
using ReflectanceCIE::OKLab;
using SpectralData::Triple;

OKLab labOf(const Triple& rgb) {
    return ReflectanceCIE::oklab(SpectralData::apply(SpectralData::Conversion::rgbToXYZ, rgb));
}

Triple rgbOf(const OKLab& lab) {
    return SpectralData::apply(SpectralData::Conversion::xyzToRGB, ReflectanceCIE::xyz(lab));
}

bool inGamut(const Triple& rgb) {
    return std::ranges::all_of(rgb, [](double v) { return v >= 0 && v <= 1; });
}

Triple clipped(Triple rgb) {
    for (double& v : rgb)
        v = std::clamp(v, 0.0, 1.0);
    return rgb;
}

/// Bisects the chroma of an out-of-gamut colour between grey and its own.
Triple searched(const OKLab& lab, double chroma, double jnd, double epsilon) {
    double low = 0, high = chroma;
    bool lowInGamut = true;
    Triple answer{};
    do {
        const double mid = (low + high) / 2;
        const OKLab lowered{lab.L, lab.a * mid / chroma, lab.b * mid / chroma};
        const auto current = rgbOf(lowered);
        answer = clipped(current);
        if (lowInGamut && inGamut(current)) {
            low = mid;
            continue;
        }
        const double error = deltaE(labOf(answer), lowered);
        if (error < jnd) {
            if (jnd - error < epsilon || high - mid <= epsilon) return answer;
            lowInGamut = false;
            low = mid;
        } else {
            high = mid;
        }
    } while (high - low > epsilon);
    return answer;
}

} // namespace

Triple map(const Triple& linearRGB, double jnd, double epsilon) {
    const auto lab = labOf(linearRGB);
    if (lab.L >= 1) return {1, 1, 1};
    if (lab.L <= 0) return {0, 0, 0};
    if (inGamut(linearRGB)) return linearRGB;
    const auto plain = clipped(linearRGB);
    const auto plainLab = labOf(plain);
    if (deltaE(plainLab, lab) < jnd) return rgbOf(plainLab);
    const double chroma = std::sqrt(lab.a * lab.a + lab.b * lab.b);
    return chroma <= epsilon ? plain : searched(lab, chroma, jnd, epsilon);
}

} // namespace TintraMix::GamutMap
