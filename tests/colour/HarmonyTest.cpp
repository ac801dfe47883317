#include "colour/Harmony.h"

#include "tests/colour/Distance.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tintra {
namespace {

constexpr double kDegree = std::numbers::pi / 180;

TEST(HarmonyOffsets, OfEveryHueHarmony) {
    struct Row {
        HarmonyMode mode;
        int count;
        std::vector<double> degrees;
    };
    const Row rows[] = {
        {HarmonyMode::complementary, 9, {0, 180}},
        {HarmonyMode::splitComplementary, 0, {0, 150, 210}},
        {HarmonyMode::triadic, 5, {0, 120, 240}},
        {HarmonyMode::tetradic, 2, {0, 60, 180, 240}},
        {HarmonyMode::square, 1, {0, 90, 180, 270}},
        {HarmonyMode::analogous, -7, {-30, 0, 30}},
        {HarmonyMode::analogous, 3, {-30, 0, 30}},
        {HarmonyMode::analogous, 4, {-30, 0, 30, 60}},
        {HarmonyMode::analogous, 5, {-60, -30, 0, 30, 60}},
        {HarmonyMode::analogous, 10, {-80, -60, -40, -20, 0, 20, 40, 60, 80, 100}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(offsets(row.mode, row.count), row.degrees) << rawValue(row.mode) << row.count;
    EXPECT_EQ(offsets(HarmonyMode::ramp, 3), std::nullopt);
}

TEST(HarmonyMode, EveryPersistedTextDecodes) {
    for (const auto mode : allHarmonyModes())
        EXPECT_EQ(harmonyMode(rawValue(mode)), mode);
    for (const auto space : allBlendSpaces())
        EXPECT_EQ(blendSpace(rawValue(space)), space);
    EXPECT_EQ(harmonyMode("Ramp"), std::nullopt);
    EXPECT_EQ(blendSpace("oklab"), std::nullopt);
}

TEST(HarmonyRotate, ByTheHsbCircle) {
    struct Row {
        WashColor colour;
        double degrees;
        WashColor turned;
    };
    const Row rows[] = {
        {{1, 0, 0, 1}, 120, {0, 1, 0, 1}},
        {{1, 0, 0, 1}, -120, {0, 0, 1, 1}},
        {{1, 0.5, 0, 0.5}, 180, {0, 0.5, 1, 0.5}},
        {{0.2, 0.6, 0.4, 1.5}, 720, {0.2, 0.6, 0.4, 1}}, // whole turns; alpha is clamped
        {{1.5, -1, 0, 1}, 60, {1, 1, 0, 1}},             // clamped into sRGB first
    };
    for (const auto& row : rows)
        EXPECT_LT(distance(Harmony::rotate(row.colour, row.degrees, BlendSpace::sRGB), row.turned),
                  1e-12)
            << row.colour.identity();
}

TEST(HarmonyRotate, KeepsLightnessInOklchAndGivesChromaAway) {
    const WashColor blue{0, 0, 1, 1};
    const auto before = oklchFromOklab(blue.oklab());
    const auto after = oklchFromOklab(Harmony::rotate(blue, 120, BlendSpace::okLab).oklab());
    EXPECT_NEAR(after.l, before.l, 1e-3); // the tolerance of the gamut test, in lightness
    EXPECT_LT(after.c, before.c - 0.05);
    EXPECT_NEAR(std::remainder(after.h - before.h, 2 * std::numbers::pi), 120 * kDegree, 0.01);
    const WashColor grey{0.3, 0.3, 0.3, 1};
    for (const auto space : allBlendSpaces())
        EXPECT_LT(distance(Harmony::rotate(grey, 77, space), grey), 1e-6);
}

TEST(HarmonyColor, FitsChromaOnly) {
    // oklch(0.62796 0.25768 29.23388) is sRGB red (CSS Color 4).
    const double hue = 29.23388 * kDegree;
    EXPECT_LT(distance(Harmony::color(0.62796, 0.25768, hue, 0.5), {1, 0, 0, 0.5}), 2e-3);
    const auto fitted = oklchFromOklab(Harmony::color(0.8, 0.4, hue, 1).oklab());
    EXPECT_NEAR(fitted.l, 0.8, 1e-3);
    EXPECT_NEAR(fitted.h, hue, 5e-3);
    EXPECT_LT(fitted.c, 0.2);
    const auto edge = Harmony::color(0.8, 0.4, hue, 1);
    EXPECT_GT(std::max({edge.r, edge.g, edge.b}), 0.9999); // no more taken than needed
}

TEST(HarmonyMonochromatic, BaseStandsJustPastTheMiddle) {
    const WashColor base{0.2, 0.4, 0.6, 0.7};
    struct Row {
        int count;
        std::size_t baseIndex;
    };
    for (const auto& [count, index] : {Row{3, 1}, Row{4, 2}, Row{9, 4}, Row{10, 5}, Row{34, 17}})
        for (const auto space : allBlendSpaces()) {
            const auto band = Harmony::monochromatic(base, count, space);
            ASSERT_EQ(band.size(), static_cast<std::size_t>(count));
            EXPECT_EQ(band[index], base) << count;
            for (std::size_t i = 1; i < band.size(); ++i)
                EXPECT_LT(band[i].oklab().L, band[i - 1].oklab().L) << count << ' ' << i;
        }
    EXPECT_EQ(Harmony::monochromatic(base, 2, BlendSpace::okLab), (Harmony::Band{base, base}));
}

TEST(HarmonyMonochromatic, EndsOfTheScale) {
    const WashColor base{0.2, 0.4, 0.6, 0.7};
    const auto classic = Harmony::monochromatic(base, 9, BlendSpace::sRGB);
    EXPECT_LT(distance(classic.front(), {0.88, 0.91, 0.94, 0.7}), 1e-12) << "85 % to white";
    EXPECT_LT(distance(classic[2], {0.54, 0.655, 0.77, 0.7}), 1e-12) << "half of that";
    EXPECT_LT(distance(classic.back(), {0.04, 0.08, 0.12, 0.7}), 1e-12) << "80 % to black";
    const auto perceptual = Harmony::monochromatic(base, 9, BlendSpace::okLab);
    EXPECT_NEAR(perceptual.front().oklab().L, 0.94, 1e-3);
    EXPECT_NEAR(perceptual.back().oklab().L, 0.18, 1e-3);
}

TEST(HarmonyBands, RampRunsFromSeedToSeed) {
    const WashColor black{0, 0, 0, 1}, white{1, 1, 1, 0.5};
    const auto two = Harmony::bands(black, white, HarmonyMode::ramp, 1, 9, BlendSpace::sRGB);
    EXPECT_EQ(two, (std::vector<Harmony::Band>{{black, white}}));
    const auto mid = [&](BlendSpace space) {
        return Harmony::bands(black, white, HarmonyMode::ramp, 3, 1, space).at(0).at(1);
    };
    EXPECT_LT(distance(mid(BlendSpace::sRGB), {0.5, 0.5, 0.5, 0.75}), 1e-12);
    // OKLab lightness 0.5 is 0.125 of linear light, 1.055 * 0.125^(1/2.4) - 0.055 encoded.
    EXPECT_LT(distance(mid(BlendSpace::okLab), {0.38857, 0.38857, 0.38857, 0.75}), 1e-4);
}

TEST(HarmonyBands, ShadesRunFromEachAnchorToTheLastSeed) {
    const WashColor base{0.9, 0.3, 0.1, 1}, last{0.1, 0.1, 0.2, 1};
    for (const auto space : allBlendSpaces()) {
        const auto anchors = Harmony::bands(base, last, HarmonyMode::triadic, 3, 1, space);
        ASSERT_EQ(anchors.size(), 1U);
        ASSERT_EQ(anchors[0].size(), 3U);
        const auto shaded = Harmony::bands(base, last, HarmonyMode::triadic, 3, 5, space);
        ASSERT_EQ(shaded.size(), 3U);
        for (std::size_t i = 0; i < 3; ++i) {
            ASSERT_EQ(shaded[i].size(), 5U);
            EXPECT_LT(distance(shaded[i].front(), anchors[0][i]), 1e-6);
            EXPECT_LT(distance(shaded[i].back(), last), 1e-6);
        }
    }
}

TEST(HarmonyBands, EveryModeStaysInsideSrgb) {
    const WashColor seeds[] = {{0, 0, 1, 1}, {1, 1, 0, 0.2}, {0, 0, 0, 1}, {1, 1, 1, 1}};
    for (const auto mode : allHarmonyModes())
        for (const auto space : allBlendSpaces())
            for (const auto& base : seeds) {
                const auto found = Harmony::bands(base, seeds[1], mode, 7, 4, space);
                EXPECT_EQ(found.empty(), mode == HarmonyMode::paletteBuilder);
                for (const auto& band : found)
                    for (const auto& colour : band)
                        for (const double v : {colour.r, colour.g, colour.b, colour.a})
                            EXPECT_TRUE(v >= 0 && v <= 1) << rawValue(mode) << ' ' << v;
            }
}

} // namespace
} // namespace tintra
