#include "mix/Stage1.h"

#include "mix/Curve.h"
#include "mix/GamutMap.h"
#include "mix/KubelkaMunk.h"
#include "mix/SpectralUpsampling.h"

#include <algorithm>

namespace TintraMix::Stage1 {

namespace {

/// A little black paint overwhelms a mixture, so it counts for less than its amount.
constexpr double kBlackStrength = 0.35;

/// Looser than the customary 0.02: mixtures keep more of their chroma.
constexpr double kJnd = 0.03;
constexpr double kEpsilon = 0.0001;

KubelkaMunk::Pigment pigmentOf(const SRGB& colour, double factor) {
    const auto spectrum =
        SpectralUpsampling::reflectance({decoded(colour.r), decoded(colour.g), decoded(colour.b)});
    return {spectrum, KubelkaMunk::luminance(spectrum), factor};
}

double component(double linear) {
    return std::clamp(encoded(linear), 0.0, 1.0);
}

} // namespace

double whiteLuminance() {
    static const double luminance = KubelkaMunk::luminance(SpectralData::base.white);
    return luminance;
}

double blackLuminance() {
    static const double luminance = KubelkaMunk::luminance(blackReflectance);
    return luminance;
}

SRGB mix(const SRGB& a, const SRGB& b, double t, double white, double black) {
    const std::array pigments{
        pigmentOf(a, 1 - t),
        pigmentOf(b, t),
        KubelkaMunk::Pigment{SpectralData::base.white, whiteLuminance(), white},
        KubelkaMunk::Pigment{blackReflectance, blackLuminance(), black * kBlackStrength},
    };
    const auto xyz = SpectralData::apply(SpectralData::cmf, KubelkaMunk::mix(pigments));
    const auto linear = SpectralData::apply(SpectralData::Conversion::xyzToRGB, xyz);
    const auto mapped = GamutMap::map(linear, kJnd, kEpsilon);
    return {component(mapped[0]), component(mapped[1]), component(mapped[2])};
}

} // namespace TintraMix::Stage1
