#include "colour/ColorFormat.h"

#include "colour/ColorProfiles.h"
#include "platform/Number.h"
#include "tests/CommaLocale.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <string>

namespace tintra {
namespace {

using F = ColorFormat;

constexpr std::string_view kName = "Robin\u2019s Egg";
// Hue 210 degrees, lightness and both saturations exact; bytes 40 80 BF by rounding halves up.
const WashColor kBlue{0.25, 0.5, 0.75, 1};
const WashColor kClearBlue{0.25, 0.5, 0.75, 0.5};

struct Golden {
    const char *format, *opaque;
    const char* translucent = nullptr; ///< as `opaque` but for the alpha where it is left out
};

/// What the translucent colour gives: the alpha is the only 1.000 in the opaque one's code.
std::string translucentCode(const Golden& row) {
    if (row.translucent != nullptr) return row.translucent;
    std::string code = row.opaque;
    if (const auto alpha = code.find("1.000"); alpha != std::string::npos)
        code.replace(alpha, 5, "0.500");
    return code;
}

// Every format but those of inks.
// clang-format off
const Golden kGolden[] = {
    {"androidARGB", "#FF4080BF", "#804080BF"},
    {"androidRGB", "#4080BF", "#804080BF"},
    {"androidXML", R"(<color name="robin_s_egg">#FF4080BF</color>)",
     R"(<color name="robin_s_egg">#804080BF</color>)"},
    {"composeColor", "Color(0xFF4080BF)", "Color(0x804080BF)"},
    {"flutterColor", "Color(0xFF4080BF)", "Color(0x804080BF)"},
    {"cgColorRGB", "CGColorCreateGenericRGB(0.250, 0.500, 0.750, 1.000)"},
    {"cssHex", "#4080bf", "#4080bf80"},
    {"cssHSL", "hsl(210, 50%, 50%)", "hsla(210, 50%, 50%, 0.500)"},
    {"cssHSLA", "hsla(210, 50%, 50%, 1.000)"},
    {"cssRGB", "rgb(64, 128, 191)", "rgba(64, 128, 191, 0.500)"},
    {"cssRGBA", "rgba(64, 128, 191, 1.000)"},
    {"cssOKLCH", "oklch(0.586 0.118 250.5)", "oklch(0.586 0.118 250.5 / 0.50)"},
    {"cssVariable", "--robins-egg: #4080bf;", "--robins-egg: #4080bf80;"},
    {"cssVar", "var(--robins-egg)"},
    {"javaRGB", "new Color(0.250, 0.500, 0.750)", "new Color(0.250, 0.500, 0.750, 0.500)"},
    {"javaRGBA", "new Color(0.250, 0.500, 0.750, 1.000)"},
    {"netRGB", "Color.FromRgb(0.250, 0.500, 0.750)", "Color.FromArgb(0.500, 0.250, 0.500, 0.750)"},
    {"netARGB", "Color.FromArgb(1.000, 0.250, 0.500, 0.750)"},
    {"openGLRGB", "glColor3f(0.250f, 0.500f, 0.750f)", "glColor4f(0.250f, 0.500f, 0.750f, 0.500f)"},
    {"openGLRGBA", "glColor4f(0.250f, 0.500f, 0.750f, 1.000f)"},
    {"nsCalibratedHSB",
     "[NSColor colorWithCalibratedHue:0.583 saturation:0.667 brightness:0.750 alpha:1.000]"},
    {"nsCalibratedRGB",
     "[NSColor colorWithCalibratedRed:0.250 green:0.500 blue:0.750 alpha:1.000]"},
    {"nsDeviceHSB",
     "[NSColor colorWithDeviceHue:0.583 saturation:0.667 brightness:0.750 alpha:1.000]"},
    {"nsDeviceRGB", "[NSColor colorWithDeviceRed:0.250 green:0.500 blue:0.750 alpha:1.000]"},
    {"nsHSB", "[NSColor colorWithHue:0.583 saturation:0.667 brightness:0.750 alpha:1.000]"},
    {"nsRGB", "[NSColor colorWithRed:0.250 green:0.500 blue:0.750 alpha:1.000]"},
    {"nsSRGB", "[NSColor colorWithSRGBRed:0.250 green:0.500 blue:0.750 alpha:1.000]"},
    {"uiHSB", "[UIColor colorWithHue:0.583 saturation:0.667 brightness:0.750 alpha:1.000]"},
    {"uiRGB", "[UIColor colorWithRed:0.250 green:0.500 blue:0.750 alpha:1.000]"},
    {"swiftNSCalibratedHSB",
     "NSColor(calibratedHue: 0.583, saturation: 0.667, brightness: 0.750, alpha: 1.000)"},
    {"swiftNSCalibratedRGB",
     "NSColor(calibratedRed: 0.250, green: 0.500, blue: 0.750, alpha: 1.000)"},
    {"swiftNSDeviceHSB",
     "NSColor(deviceHue: 0.583, saturation: 0.667, brightness: 0.750, alpha: 1.000)"},
    {"swiftNSDeviceRGB", "NSColor(deviceRed: 0.250, green: 0.500, blue: 0.750, alpha: 1.000)"},
    {"swiftNSHSB", "NSColor(hue: 0.583, saturation: 0.667, brightness: 0.750, alpha: 1.000)"},
    {"swiftNSRGB", "NSColor(red: 0.250, green: 0.500, blue: 0.750, alpha: 1.000)"},
    {"swiftNSSRGB", "NSColor(srgbRed: 0.250, green: 0.500, blue: 0.750, alpha: 1.000)"},
    {"swiftUIHSB", "UIColor(hue: 0.583, saturation: 0.667, brightness: 0.750, alpha: 1.000)"},
    {"swiftUIRGB", "UIColor(red: 0.250, green: 0.500, blue: 0.750, alpha: 1.000)"},
    {"swiftUIColor", "Color(red: 0.250, green: 0.500, blue: 0.750)",
     "Color(red: 0.250, green: 0.500, blue: 0.750, opacity: 0.500)"},
    {"swiftUIColorHSB", "Color(hue: 0.583, saturation: 0.667, brightness: 0.750)",
     "Color(hue: 0.583, saturation: 0.667, brightness: 0.750, opacity: 0.500)"},
};
// clang-format on

TEST(ColorFormatCode, IsWrittenInEveryShape) {
    for (const auto& row : kGolden) {
        const auto format = F::fromRaw(row.format);
        ASSERT_TRUE(format) << row.format;
        EXPECT_EQ(format->string(kBlue, kName, {}), row.opaque);
        EXPECT_EQ(format->string(kClearBlue, kName, {}), translucentCode(row));
    }
}

TEST(ColorFormatCode, WritesInksInOrder) {
    const auto inks = kClearBlue.cmyk();
    const auto c = fixed(inks.c, 3), m = fixed(inks.m, 3), y = fixed(inks.y, 3),
               k = fixed(inks.k, 3);
    const auto code = [](F format) { return format.string(kClearBlue, "", {}); };
    EXPECT_NE(c, m); // or the order would not show
    EXPECT_EQ(code(F::cgColorCMYK),
              "CGColorCreateGenericCMYK(" + c + ", " + m + ", " + y + ", " + k + ", 0.500)");
    EXPECT_EQ(code(F::nsDeviceCMYK), "[NSColor colorWithDeviceCyan:" + c + " magenta:" + m +
                                         " yellow:" + y + " black:" + k + " alpha:0.500]");
    EXPECT_EQ(code(F::swiftNSDeviceCMYK), "NSColor(deviceCyan: " + c + ", magenta: " + m +
                                              ", yellow: " + y + ", black: " + k +
                                              ", alpha: 0.500)");
}

TEST(ColorFormatCode, FollowsTheOptions) {
    struct Row {
        F format;
        FormatOptions options;
        const char* code;
    };
    const WashColor orange{1, 0.5, 0, 0.5};
    const FormatOptions fractions{.useFractions = true};
    const FormatOptions upper{.cssUppercase = true};
    const Row rows[] = {
        {F::cssHex, {.cssPrefixHash = false}, "ff800080"},
        {F::cssHex, {.cssUppercase = true, .cssPrefixHash = false}, "FF800080"},
        {F::cssHSL, upper, "HSLA(30, 100%, 50%, 0.500)"},
        {F::cssVariable,
         {.cssUppercase = true, .cssPrefixHash = false},
         "--ROBINS-EGG: #FF800080;"},
        {F::androidXML, upper, "<color name=\"robin_s_egg\">#80FF8000</color>"},
        {F::cssRGB, {.removeWhitespace = true}, "rgba(255,128,0,0.500)"},
        {F::cssOKLCH, {.decimals = 1, .removeWhitespace = true}, "oklch(0.731 0.186 52.8 / 0.50)"},
        {F::uiRGB,
         {.removeWhitespace = true},
         "[UIColor colorWithRed:1.000 green:0.500 blue:0.000 alpha:0.500]"},
        {F::javaRGB, {.decimals = 0}, "new Color(1.0, 0.5, 0.0, 0.5)"},
        {F::javaRGB, {.decimals = 9}, "new Color(1.00000, 0.50000, 0.00000, 0.50000)"},
        {F::javaRGB, fractions, "new Color(255.0/255.0, 127.5/255.0, 0.0/255.0, 0.500)"},
        {F::openGLRGB, fractions, "glColor4f(255.0/255.0f, 127.5/255.0f, 0.0/255.0f, 0.500f)"},
        {F::swiftUIColor, fractions,
         "Color(red: 255.0/255, green: 127.5/255, blue: 0.0/255, opacity: 0.500)"},
        {F::swiftUIHSB, fractions,
         "UIColor(hue: 21.2/255.0, saturation: 255.0/255.0, brightness: 255.0/255.0, alpha: "
         "0.500)"}, // 21.25 to even
        {F::cssRGBA, fractions, "rgba(255, 128, 0, 0.500)"},
    };
    for (const auto& [format, options, code] : rows)
        EXPECT_EQ(format.string(orange, kName, options), code);
}

TEST(ColorFormatCode, TellsColoursAtTheEdges) {
    const auto code = [](F format, const WashColor& colour) {
        return format.string(colour, "", {});
    };
    EXPECT_EQ(code(F::cssRGB, {1, 0.5, 0, 0.9995}), "rgb(255, 128, 0)");
    EXPECT_EQ(code(F::cssRGB, {1, 0.5, 0, 0.9989}), "rgba(255, 128, 0, 0.999)");
    EXPECT_EQ(code(F::cssOKLCH, {0.2, 0.2, 0.2, 1}), "oklch(0.321 0.000 0.0)");
    EXPECT_EQ(code(F::swiftUIRGB, {1.25, -0.5, 0, 1}),
              "UIColor(red: 1.250, green: -0.500, blue: 0.000, alpha: 1.000)");
    EXPECT_EQ(code(F::cssRGB, {1.25, -0.5, std::nan(""), 1}), "rgb(255, 0, 0)");
    EXPECT_EQ(code(F::cssVar, {}), "var(--colour)");
}

TEST(ColorFormatCode, SelectedSpaceReachesOnlyBytesAndHex) {
    auto& profiles = ColorProfiles::shared();
    profiles.selectRGB("Display P3");
    const WashColor red{1, 0, 0, 1}; // (0.9175, 0.2003, 0.1386) in Display P3
    EXPECT_EQ(F(F::cssRGB).string(red, "", {}), "rgb(234, 51, 35)");
    EXPECT_EQ(F(F::composeColor).string(red, "", {}), "Color(0xFFEA3323)");
    EXPECT_EQ(F(F::netRGB).string(red, "", {}), "Color.FromRgb(1.000, 0.000, 0.000)");
    EXPECT_EQ(F(F::cssHSL).string(red, "", {}), "hsl(0, 100%, 50%)");
    profiles.selectRGB(ColorProfiles::kDefaultRgb);
}

TEST(ColorFormatCode, KnowsNoLocale) {
    const CommaLocale comma;
    EXPECT_EQ(F(F::cssRGBA).string({1, 0.5, 0, 1}, "", {}), "rgba(255, 128, 0, 1.000)");
    EXPECT_EQ(FormatOptions{.useFractions = true}.number(0.5, "255.0"), "127.5/255.0");
}

TEST(ColorFormatList, EveryRawTextDecodesToItsCase) {
    EXPECT_EQ(F::all().size(), 43);
    for (const auto format : F::all())
        EXPECT_EQ(F::fromRaw(format.rawValue()), format) << format.rawValue();
    EXPECT_EQ(F::fromRaw("cssHWB"), std::nullopt);
    EXPECT_EQ(F::fromRaw("csshex"), std::nullopt);
    EXPECT_EQ(F(F::netARGB).title(), ".Net ARGB");
}

TEST(ColorFormatList, FamiliesHoldEveryFormatOnce) {
    std::multiset<F::Case> listed;
    std::set<std::string_view> titles;
    for (const auto& family : F::families()) {
        titles.insert(family.title);
        for (const auto format : family.formats) {
            listed.insert(format);
            EXPECT_EQ(&format.family(), &family);
        }
    }
    EXPECT_EQ(titles.size(), 12);
    EXPECT_TRUE(std::equal(listed.begin(), listed.end(), F::all().begin(), F::all().end()));

    const auto other = F::formats(F::Platform::other);
    EXPECT_EQ(other.size(), 13);
    EXPECT_EQ(other.front(), F::composeColor);
    EXPECT_EQ(other.back(), F::cgColorCMYK);
    EXPECT_EQ(F::families(F::Platform::apple).front().title, "SwiftUI");
    EXPECT_EQ(rawValue(F::Platform::web), "web");
}

TEST(ColorFormatNames, BecomeSlugsAndResourceNames) {
    struct Row {
        const char *name, *slug, *strict, *android;
    };
    const Row rows[] = {
        {"Robin\u2019s  Egg!", "robins-egg", "robins-egg", "robin_s__egg_"},
        {"Cr\u00E8me Bru\u0302l\u00E9e", "creme-brulee", "creme-brulee",
         "cr\u00E8me_bru\u0302l\u00E9e"},
        {"3rd Wave", "3rd-wave", "c-3rd-wave", "3rd_wave"},
        {"--Don't-- ", "dont", "dont", "__don_t___"},
        {"\u6843", "colour", "colour", "\u6843"},
        {"Tea \u2615 \u00BD", "tea-1-2", "tea-1-2", "tea___\u00BD"},
        {"", "colour", "colour", ""},
    };
    for (const auto& [name, slug, strict, android] : rows) {
        EXPECT_EQ(cssSlug(name, LeadingDigit::allowed), slug);
        EXPECT_EQ(cssSlug(name, LeadingDigit::notAllowed), strict);
        EXPECT_EQ(androidName(name), android);
        EXPECT_TRUE(isIdentifier(slug, LeadingDigit::allowed)) << slug;
        EXPECT_TRUE(isIdentifier(strict, LeadingDigit::notAllowed)) << strict;
    }
    for (const char* text : {"", "-a", "a-", "a--b", "A", "a_b", "\u00E9"})
        EXPECT_FALSE(isIdentifier(text, LeadingDigit::allowed)) << text;
    EXPECT_FALSE(isIdentifier("3rd", LeadingDigit::notAllowed));
}

} // namespace
} // namespace tintra
