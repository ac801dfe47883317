#include "palettes/PasteColours.h"

#include "colour/ColorProfiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace tintra {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;

/// Bytes and alpha of the colour of a line, "-" for none.
std::string read(std::string_view line) {
    const auto colour = PasteColours::colour(line);
    return colour ? colour->identity() : "-";
}

struct Row {
    const char* line;
    const char* identity;
};

void expectAll(std::span<const Row> rows) {
    for (const auto& [line, identity] : rows)
        EXPECT_EQ(read(line), identity) << line;
}

TEST(PasteColours, ReadsHex) {
    const Row rows[] = {
        {"  #aBc ", "AABBCCFF"},
        {"color: #ff880080;", "FF880080"},
        {"#abcd", "-"},                       // four digits are known to stylesheets only
        {"#ff88001", "-"},                    // no word ends after 3, 6 or 8 digits
        {"#ff8800_ #123", "112233FF"},        // "_" is part of a word
        {"#ff8800\xC3\xA9 #123", "112233FF"}, // so is a letter outside ASCII
        {"<color name=\"x\">#80FF0000</color>", "FF000080"}, // alpha first
        {"<color name=\"x\">#FF8800</color>", "FF8800FF"},
        {"brand FF8800, hot", "FF8800FF"},
        {"brandff8800", "-"},
        {"ff880080", "-"}, // eight bare digits could be either order
    };
    expectAll(rows);
}

TEST(PasteColours, ReadsCssFunctions) {
    const Row rows[] = {
        {"rgb(1, 1, 1)", "FFFFFFFF"}, // all within 0...1: fractions
        {"rgb(1, 1, 2)", "010102FF"},
        {"RGBA(255,128,0,.5)", "FF800080"},
        {"rgba(0 0 0 / 50%)", "00000080"},
        {"rgba(255, 0, 0, -1)", "FF000000"},
        {"rgb(100% 50% 1%)", "FF8003FF"}, // 1 % is no fraction of 1
        {"rgb 255 128 0", "FF8000FF"},
        {"rgba: none; rgb(9, 9, 9)", "090909FF"},                  // no number behind "rgba"
        {"linear-gradient(rgb(255,0,0), rgb(0,0,9))", "FF0000FF"}, // not the alpha of the first
        {"hsl(120, 100%, 25%)", "008000FF"},
        {"hsl(120 1 .25)", "008000FF"},
        {"hsl(-600deg 100% 50%)", "00FF00FF"},
        {"hsl(0.5turn 100% 50%)", "00FFFFFF"},
        {"hsl(200grad 100% 50%)", "00FFFFFF"},
        {"hsla(3.14159265rad, 100%, 50%, .5)", "00FFFF80"},
        {"hsl(0 0% 1%)", "030303FF"},
        // Green of CSS Color 4 in every space, as its tests publish it.
        {"oklch(51.975% 0.17686 142.495)", "008000FF"},
        {"oklch(0.51975 44.215% 142.495 / 0.5)", "00800080"},
        {"lab(46.2775% -47.5621 48.5837)", "008000FF"},
        {"lch(46.2775 67.9892 134.3912)", "008000FF"},
        {"oklab(51.975% -0.1403 0.10768)", "008000FF"},
        {"Color(Display-P3 0.21604 0.49418 0.13151)", "008000FF"},
        {"lab(50 none 0)", "-"},
    };
    expectAll(rows);
}

TEST(PasteColours, ReadsConstructorsOfCode) {
    const Row rows[] = {
        {"0x80FF0000", "FF000080"},
        {"let c = 0XFF8800;", "FF8800FF"},
        {"Color.FromArgb(128, 255, 0, 0)", "FF000080"},
        {"Color.FromArgb(255, 136, 0)", "FF8800FF"}, // without alpha
        {"[NSColor colorWithSRGBRed:0.2 green:0.4 blue:0.6 alpha:0.5]", "33669980"},
        {"UIColor(srgbRed: 51/255, green: 102.0 / 255.0, blue: .6, alpha: 1)", "336699FF"},
        {"glColor4f(51.0/255.0f, 0.4f, 0.6f, 1.0f)", "336699FF"},
        {"Color(hue: 0.5, saturation: 1, brightness: 1, opacity: 0.5)", "00FFFF80"},
        {"hsb(180, 100, 50)", "008080FF"}, // degrees and percent once a number exceeds 1
        {"hsb(0.5turn, 100%, 50%, 0.5)", "00808080"},
        {"Color(1, 2)", "-"},
        {"cmyk(0.1, 0.2, 0.3)", "-"},
        {"0xF80", "-"},
    };
    expectAll(rows);
}

TEST(PasteColours, ReadsInksThroughTheSelectedProfile) {
    const auto colour = PasteColours::colour("NSColor(deviceCyan: 0.1, magenta: 0.2, yellow: 0.3, "
                                             "black: 0.4, alpha: 0.5)");
    ASSERT_TRUE(colour);
    const auto expected = ColorProfiles::shared().cmykSpace().toSrgb({0.1, 0.2, 0.3, 0.4});
    ASSERT_TRUE(expected);
    EXPECT_EQ(*colour, (WashColor{expected->r, expected->g, expected->b, 0.5}));
}

TEST(PasteColours, ReadsBareNumbersAndNames) {
    const Row rows[] = {
        {"255 128 0", "FF8000FF"},
        {"0.2, 0.4, 0.6", "336699FF"},
        {"20%;40%;60%", "336699FF"},
        {"1 2 3 4", "-"},
        {"256 0 0", "-"},
        {"-1 0 0", "-"},
        {"(1 2", "-"},
        {"RebeccaPurple", "663399FF"},
        {"rebecca", "-"},
        {"transparent", "-"},
        {"", "-"},
    };
    expectAll(rows);
}

TEST(PasteColours, KeepsTheLinesThatHoldAColour) {
    EXPECT_THAT(PasteColours::parse("#f00\r\n\n none \rred\xE2\x80\xA8#00f"),
                ElementsAre(WashColor{1, 0, 0, 1}, WashColor{1, 0, 0, 1}, WashColor{0, 0, 1, 1}));
}

TEST(PasteColours, FindsNumbersBehindAKeyword) {
    EXPECT_THAT(PasteColours::allNumbers("a-1.5, .25.5 7.f 1e3"),
                ElementsAre(-1.5, 0.25, 0.5, 7, 1, 3));
    EXPECT_THAT(*PasteColours::numbers("rgb", "srgb 1 rgb-2 rgb 3"), ElementsAre(3));
    EXPECT_EQ(PasteColours::numbers("rgb", "srgb 1, rgba 2, _rgb 3"), std::nullopt);
    EXPECT_THAT(PasteColours::allNumbers(
                    PasteColours::dividingFractions("128/255 -51 / 255.0 1/2550 51.0/255.0f")),
                ElementsAre(DoubleNear(128 / 255.0, 1e-16), -0.2, 1, 2550, 0.2));
}

TEST(PasteColours, TakesAnyBytesInLinearTime) {
    const auto times = [](std::string_view piece) {
        std::string text;
        while (text.size() < 300'000)
            text += piece;
        return text;
    };
    // Each would keep a quadratic reader busy for minutes.
    const Row rows[] = {
        {"rgb(", "-"},      {"rgb-", "-"}, {"lab(", "-"}, {"lab(1 ", "FFFFFFFF"},
        {"0x", "00000000"}, {"1/", "-"},   {"1 ", "-"},   {"#12345", "-"},
        {"abcde ", "-"},    {"-", "-"},    {".", "-"},    {"\xC3", "-"},
        {"\xE2\x80", "-"},  {"9", "-"},    {" ", "-"},
    };
    for (const auto& [piece, identity] : rows)
        EXPECT_EQ(read(times(piece)), identity) << piece;
    EXPECT_EQ(read("rgb(1" + times("0") + ", 0, 0)"), "FF0000FF");
    EXPECT_EQ(read(std::string("\0#f80\0", 6)), "FF8800FF");
    EXPECT_EQ(PasteColours::parse(times("\n")).size(), 0U);
}

} // namespace
} // namespace tintra
