#include "colour/ColorFormat.h"
#include "colour/ColorProfiles.h"
#include "palettes/PasteColours.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace tintra {
namespace {

bool holdsInks(ColorFormat format) {
    return format == ColorFormat::cgColorCMYK || format == ColorFormat::nsDeviceCMYK ||
           format == ColorFormat::swiftNSDeviceCMYK;
}

/// How many of 255 steps a format's own rounding may move a channel.
int tolerance(ColorFormat format) {
    switch (format) {
    case ColorFormat::cssHSL:
    case ColorFormat::cssHSLA:
        return 3; // whole degrees and whole percent
    case ColorFormat::cssOKLCH:
        return 2; // three decimals of lightness and chroma
    default:
        return holdsInks(format) ? 1 : 0; // three decimals of inks
    }
}

/// Texts that cannot tell the colour: a reference, and eight digits whose alpha could stand at
/// either end.
bool cannotBeRead(ColorFormat format, std::string_view text) {
    const bool isAndroid = format == ColorFormat::androidARGB || format == ColorFormat::androidRGB;
    return format == ColorFormat::cssVar || (isAndroid && text.size() == 9) ||
           (format == ColorFormat::cssHex && text.size() == 8);
}

/// The colour that the inks of a colour print.
WashColor printed(const WashColor& colour) {
    const auto inks = colour.cmyk();
    const auto srgb = ColorProfiles::shared().cmykSpace().toSrgb({inks.c, inks.m, inks.y, inks.k});
    return srgb ? WashColor{srgb->r, srgb->g, srgb->b, colour.a} : colour;
}

void expectSame(const WashColor& read, const WashColor& written, int steps) {
    const auto a = read.srgb255(), b = written.srgb255();
    const int apart = std::max({std::abs(a.r - b.r), std::abs(a.g - b.g), std::abs(a.b - b.b)});
    EXPECT_LE(apart, steps) << read.identity() << " for " << written.identity();
    EXPECT_EQ(byteOf(read.a), byteOf(written.a));
}

class FormatRoundTrip : public testing::TestWithParam<FormatOptions> {};

TEST_P(FormatRoundTrip, EveryFormatReadsBackToItsColour) {
    // Corners and middles; no near-black, whose rgb() bytes are read as fractions.
    const WashColor colours[] = {
        {1, 136.0 / 255, 0, 1},
        {0, 0, 0, 1},
        {1, 1, 1, 1},
        {51 / 255.0, 102 / 255.0, 153 / 255.0, 0.6},
        {1 / 255.0, 254 / 255.0, 128 / 255.0, 0.2},
        {0.5, 0.5, 0.5, 1},
    };
    for (const ColorFormat format : ColorFormat::all()) {
        for (const auto& colour : colours) {
            const auto text = format.string(colour, "Brand Colour 5", GetParam());
            SCOPED_TRACE(std::string(format.rawValue()) + ": " + text);
            if (cannotBeRead(format, text)) continue;
            const auto read = PasteColours::colour(text);
            EXPECT_TRUE(read);
            const auto expected = holdsInks(format) ? printed(colour) : colour;
            if (read) expectSame(*read, expected, tolerance(format));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Options, FormatRoundTrip,
                         testing::Values(FormatOptions{}, FormatOptions{.decimals = 5},
                                         FormatOptions{.useFractions = true},
                                         FormatOptions{.removeWhitespace = true},
                                         FormatOptions{.cssUppercase = true},
                                         FormatOptions{.cssPrefixHash = false}));

} // namespace
} // namespace tintra
