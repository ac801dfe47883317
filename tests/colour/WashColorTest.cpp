#include "colour/WashColor.h"

#include "colour/Backdrop.h"
#include "colour/ColorProfiles.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <thread>

namespace tintra {
namespace {

TEST(WashColorHex, ReadsWhatPeopleWrite) {
    struct Row {
        const char* text;
        WashColor colour;
    };
    const Row rows[] = {
        {"#FFAA00", {1, 170.0 / 255, 0, 1}},
        {"  #ffaa00\n", {1, 170.0 / 255, 0, 1}},
        {"fa0", {1, 170.0 / 255, 0, 1}},
        {"#ffaa0080", {1, 170.0 / 255, 0, 128.0 / 255}},
        {"ffaa00ff", {1, 170.0 / 255, 0, 1}},
        {"0xFFAA00", {1, 170.0 / 255, 0, 1}},
        {"#0xffaa00", {1, 170.0 / 255, 0, 1}},
        {"0XfA0", {1, 170.0 / 255, 0, 1}},
        {"\xC2\xA0#000\xE2\x80\xA8", {0, 0, 0, 1}}, // no-break space, line separator
    };
    for (const auto& [text, colour] : rows)
        EXPECT_EQ(WashColor::fromHex(text), colour) << text;
    for (const char* bad : {"", "#", "#fa08", "#ffaa0", "#gg0000", "+fa0", "-ffaa0", "##ffaa00",
                            "0x0xffaa00", "#ff aa0", "#ffaa00ff0"})
        EXPECT_EQ(WashColor::fromHex(bad), std::nullopt) << bad;
}

TEST(WashColorHex, WritesClampedBytes) {
    EXPECT_EQ((WashColor{1.2, -0.1, 0.5, 1}.hex()), "#FF0080"); // 127.5 goes up
    EXPECT_EQ((WashColor{1, 0, 0, 1}.hexWithAlpha()), "FF0000FF");
    EXPECT_EQ((WashColor{std::nan(""), 0, 0, 0.5}.hexWithAlpha()), "00000080");
}

TEST(WashColorHex, FollowsTheSelectedSpaceButIdentityDoesNot) {
    auto& profiles = ColorProfiles::shared();
    profiles.selectRGB("Display P3");
    const WashColor red{1, 0, 0, 1};
    // The well-known Display P3 coordinates of sRGB red (0.9175, 0.2003, 0.1386).
    EXPECT_EQ(red.hex(), "#EA3323");
    EXPECT_EQ(red.identity(), "FF0000FF");
    profiles.selectRGB("no such space");
    EXPECT_EQ(profiles.selectedRGB(), "sRGB IEC61966-2.1");
    EXPECT_EQ(red.hex(), "#FF0000");
}

TEST(WashColorModels, HueSaturationOfKnownColours) {
    struct Row {
        WashColor colour;
        Hsb hsb;
        Hsl hsl;
    };
    const Row rows[] = {
        {{1, 0, 0, 1}, {0, 1, 1}, {0, 100, 50}},
        {{0, 0, 1, 1}, {2.0 / 3, 1, 1}, {240, 100, 50}},
        {{0.25, 0.25, 0.25, 1}, {0, 0, 0.25}, {0, 0, 25}},
        {{1, 0, 0.5, 1}, {11.0 / 12, 1, 1}, {330, 100, 50}}, // hue below zero wraps
        {{0.75, 1, 0.75, 1}, {1.0 / 3, 0.25, 1}, {120, 100, 87.5}},
        {{2, -1, 0, 1}, {0, 1, 1}, {0, 100, 50}}, // clamped first
        {{0, 0, 0, 1}, {0, 0, 0}, {0, 0, 0}},
    };
    for (const auto& row : rows) {
        const auto hsb = row.colour.hsb();
        const auto hsl = row.colour.hsl();
        EXPECT_NEAR(hsb.h, row.hsb.h, 1e-12) << row.colour.identity();
        EXPECT_NEAR(hsb.s, row.hsb.s, 1e-12) << row.colour.identity();
        EXPECT_NEAR(hsb.b, row.hsb.b, 1e-12) << row.colour.identity();
        EXPECT_NEAR(hsl.h, row.hsl.h, 1e-10) << row.colour.identity();
        EXPECT_NEAR(hsl.s, row.hsl.s, 1e-10) << row.colour.identity();
        EXPECT_NEAR(hsl.l, row.hsl.l, 1e-10) << row.colour.identity();
    }
}

TEST(WashColorModels, LabOfPublishedColours) {
    // Lindbloom's calculator, sRGB reference white, Bradford for D50; two decimals shown there.
    struct Row {
        WashColor colour;
        LabIlluminant illuminant;
        Lab lab;
    };
    const Row rows[] = {
        {{1, 1, 1, 1}, LabIlluminant::d50, {100, 0, 0}},
        {{1, 1, 1, 1}, LabIlluminant::d65, {100, 0, 0}},
        {{0, 0, 0, 1}, LabIlluminant::d50, {0, 0, 0}},
        {{1, 0, 0, 1}, LabIlluminant::d65, {53.2408, 80.0925, 67.2032}},
        {{1, 0, 0, 1}, LabIlluminant::d50, {54.2917, 80.8125, 69.8851}}, // CSS Color 4 samples
        {{0, 0, 1, 1}, LabIlluminant::d50, {29.5676, 68.2986, -112.0294}},
    };
    for (const auto& row : rows) {
        const auto lab = row.colour.lab(row.illuminant);
        EXPECT_NEAR(lab.L, row.lab.L, 0.01) << row.colour.identity();
        EXPECT_NEAR(lab.a, row.lab.a, 0.01) << row.colour.identity();
        EXPECT_NEAR(lab.b, row.lab.b, 0.01) << row.colour.identity();
    }
    const auto back = rgbFromLabD50(WashColor{0.2, 0.5, 0.8, 1}.lab(LabIlluminant::d50));
    EXPECT_NEAR(back.r, 0.2, 1e-6);
    EXPECT_NEAR(back.g, 0.5, 1e-6);
    EXPECT_NEAR(back.b, 0.8, 1e-6);
}

TEST(WashColorModels, OklabOfPublishedColoursAndBack) {
    const auto red = WashColor{1, 0, 0, 1}.oklab(); // CSS Color 4: oklch(0.62796 0.25768 29.23388)
    EXPECT_NEAR(red.L, 0.62796, 1e-5);
    EXPECT_NEAR(std::hypot(red.a, red.b), 0.25768, 1e-5);
    EXPECT_NEAR(std::atan2(red.b, red.a) * 180 / M_PI, 29.23388, 1e-3);

    const auto back = WashColor::fromOklab(WashColor{0.1, 0.6, 0.9, 1}.oklab(), 0.25);
    EXPECT_NEAR(back.r, 0.1, 1e-6);
    EXPECT_NEAR(back.g, 0.6, 1e-6);
    EXPECT_NEAR(back.b, 0.9, 1e-6);
    EXPECT_EQ(back.a, 0.25);

    const auto clipped = WashColor::fromOklab({1, 0.4, 0}, 2);
    EXPECT_EQ(clipped.r, 1);
    EXPECT_NEAR(clipped.g, 0.126, 1e-3); // by hand: linear 0.0145
    EXPECT_EQ(clipped.a, 1);
    EXPECT_EQ(WashColor::fromOklab({std::nan(""), 0, 0}, 1), (WashColor{0, 0, 0, 1}));
    EXPECT_LT((WashColor{-0.2, 0, 0, 1}.luminance()), 0); // the sign survives
}

TEST(WashColorModels, PlatformColoursKeepTheirRange) {
    // Display P3 green lies outside sRGB: about (-0.5116, 1.0183, -0.3107) in extended sRGB.
    const auto green = WashColor::fromPlatform({ColourSpace::displayP3(), {0, 1, 0}, 1.5});
    ASSERT_TRUE(green);
    EXPECT_NEAR(green->r, -0.5116, 5e-4);
    EXPECT_NEAR(green->g, 1.0183, 5e-4);
    EXPECT_NEAR(green->b, -0.3107, 5e-4);
    EXPECT_EQ(green->a, 1);
    EXPECT_EQ(green->rgb255(*ColourSpace::displayP3()), (Rgb255{0, 255, 0}));
    EXPECT_EQ(WashColor::fromPlatform({nullptr, {0, 1, 0}, 1}), std::nullopt);
}

TEST(WashColorOverBackdrop, CompositesBelowTheOpaqueThreshold) {
    const WashColor opaque{0.1, 0.2, 0.3, 0.999};
    EXPECT_EQ(opaque.overCheckerboard(), opaque);
    const auto laid = WashColor{0, 0, 1, 0.998}.overCheckerboard();
    EXPECT_NEAR(laid.r, 0.87 * 0.002, 1e-12);
    EXPECT_EQ(laid.a, 1);

    setBackdropSource([] { return Rgb{1, 0, 0}; });
    EXPECT_EQ((WashColor{0, 0, 0, 0}.overCheckerboard()), (WashColor{1, 0, 0, 1}));
    WashColor elsewhere;
    std::thread([&] { elsewhere = WashColor{0, 0, 0, 0}.overCheckerboard(); }).join();
    EXPECT_EQ(elsewhere, (WashColor{0.87, 0.87, 0.87, 1}));
    setBackdropSource({});

    EXPECT_EQ((WashColor{0.5, 0.5, 0.5, 1}.readableForeground()), (WashColor{0, 0, 0, 1}));
    EXPECT_EQ((WashColor{0, 0, 1, 1}.readableForeground()), (WashColor{1, 1, 1, 1}));
}

TEST(WashColorIdentity, EqualsHashAlike) {
    const WashColor zero{0, 0, 0, 1}, negative{-0.0, 0, 0, 1};
    EXPECT_EQ(zero, negative);
    EXPECT_EQ(std::hash<WashColor>()(zero), std::hash<WashColor>()(negative));
    const WashColor nan{std::numeric_limits<double>::quiet_NaN(), 0, 0, 1};
    EXPECT_FALSE(nan == nan);
}

} // namespace
} // namespace tintra
