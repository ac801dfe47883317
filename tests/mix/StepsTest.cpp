#include "mix/GamutMap.h"
#include "mix/KubelkaMunk.h"
#include "mix/ReflectanceCIE.h"
#include "mix/SpectralUpsampling.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace TintraMix {
namespace {

using namespace SpectralData;

void expectNear(const Triple& found, const Triple& expected, double tolerance) {
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_NEAR(found[i], expected[i], tolerance) << i;
}

TEST(SpectralData, ObserverAddsUpToTheWhiteOfD65) {
    Spectrum perfect;
    perfect.fill(1);
    expectNear(SpectralData::apply(cmf, perfect), {0.95016409, 1, 1.08813355}, 1e-8);
    EXPECT_TRUE(std::all_of(cmf[2].begin() + 27, cmf[2].end(), [](double z) { return z == 0; }));
    EXPECT_GT(cmf[2][26], 0);
}

TEST(SpectralData, StatedInversesAreInverses) {
    const struct {
        Matrix there, back;
    } pairs[] = {{Conversion::rgbToXYZ, Conversion::xyzToRGB},
                 {Conversion::xyzToLMS, Conversion::lmsToXYZ},
                 {Conversion::lmsToLab, Conversion::labToLMS}};
    for (const auto& [there, back] : pairs)
        for (const Triple& axis : {Triple{1, 0, 0}, Triple{0, 1, 0}, Triple{0, 0, 1}})
            expectNear(SpectralData::apply(back, SpectralData::apply(there, axis)), axis, 1e-14);
}

TEST(SpectralUpsampling, LooksLikeTheColour) {
    EXPECT_EQ(SpectralUpsampling::reflectance({1, 1, 1}), base.white);
    for (const double sample : SpectralUpsampling::reflectance({0, 0, 0}))
        EXPECT_EQ(sample, std::numeric_limits<double>::epsilon());
    for (int i = 0; i < 125; ++i) {
        const int r = i % 5, g = i / 5 % 5, b = i / 25;
        const Triple rgb{r / 4.0, g / 4.0, b / 4.0};
        const auto xyz = SpectralData::apply(cmf, SpectralUpsampling::reflectance(rgb));
        expectNear(SpectralData::apply(Conversion::xyzToRGB, xyz), rgb,
                   1e-7); // digits of the base spectra
    }
}

TEST(KubelkaMunk, WeighsBySquaredAmountAndLuminance) {
    Spectrum quarter, half;
    quarter.fill(0.25);
    half.fill(0.5);
    // K/S 1.125 and 0.25 at weights 0.0625 and 0.125: 0.541667, reflecting 0.368323.
    const KubelkaMunk::Pigment pair[] = {{quarter, 0.25, 0.5}, {half, 0.5, 0.5}};
    for (const double sample : KubelkaMunk::mix(pair))
        EXPECT_NEAR(sample, 0.368323, 1e-6);
    EXPECT_NEAR(KubelkaMunk::luminance(quarter), 0.25, 1e-12);
}

TEST(ReflectanceCIE, ConvertsThePublishedPairs) {
    const struct {
        Triple xyz;
        ReflectanceCIE::OKLab lab;
    } pairs[] = {{{0.950, 1, 1.089}, {1, 0, 0}}, // Ottosson's test values, three decimals
                 {{1, 0, 0}, {0.450, 1.236, -0.019}},
                 {{0, 1, 0}, {0.922, -0.671, 0.263}},
                 {{0, 0, 1}, {0.153, -1.415, -0.449}}};
    for (const auto& [xyz, lab] : pairs) {
        const auto found = ReflectanceCIE::oklab(xyz);
        EXPECT_LT(ReflectanceCIE::deltaE(found, lab), 1.5e-3) << lab.L;
        expectNear(ReflectanceCIE::xyz(found), xyz, 1e-12);
    }
}

TEST(GamutMap, KeepsLightnessAndHue) {
    const auto labOf = [](const Triple& rgb) {
        return ReflectanceCIE::oklab(SpectralData::apply(Conversion::rgbToXYZ, rgb));
    };
    for (const Triple& rgb : {Triple{-0.3, 1.1, -0.1}, Triple{1.3, -0.2, 0.1}, Triple{0, 0, 1.4},
                              Triple{0.9, -0.4, 1.2}, Triple{-0.5, 0.6, 0.7}}) {
        const auto mapped = GamutMap::map(rgb, 0.03, 0.0001);
        for (const double v : mapped)
            EXPECT_TRUE(v >= -1e-9 && v <= 1 + 1e-9) << v;
        const auto from = labOf(rgb), to = labOf(mapped);
        EXPECT_NEAR(to.L, from.L, 0.03); // the unnoticed clipping at the end
        const double chroma = std::hypot(to.a, to.b);
        EXPECT_LT(chroma, std::hypot(from.a, from.b));
        EXPECT_LT(std::abs(from.a * to.b - from.b * to.a) / std::hypot(from.a, from.b), 0.03);
    }
}

TEST(GamutMap, LeavesAloneWhatIsInsideAndClipsWhatIsClose) {
    const Triple inside{0.2, 1, 0};
    EXPECT_EQ(GamutMap::map(inside, 0.03, 0.0001), inside);
    expectNear(GamutMap::map({1.01, 0.4, 0.3}, 0.03, 0.0001), {1, 0.4, 0.3}, 1e-9);
    EXPECT_EQ(GamutMap::map({1.2, 1.1, 0.9}, 0.03, 0.0001), (Triple{1, 1, 1}));
    EXPECT_EQ(GamutMap::map({-0.2, -0.1, 0}, 0.03, 0.0001), (Triple{0, 0, 0}));
}

} // namespace
} // namespace TintraMix
