#include "colour/ColorProfiles.h"
#include "palettes/PaletteExport.h"
#include "platform/File.h"
#include "tests/CommaLocale.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace tintra {
namespace {

using Names = std::vector<std::optional<std::string>>;
using PaletteExport::Entry;
using enum ExportFormat;

// On white paper half-opaque blue is light (luminance 0.27), so black reads better on it.
const std::vector<WashColor> kColours{{1, 0.5, 0, 1}, {0, 0, 1, 0.5}, {1, 1, 1, 0.9992}};
const Names kNames{"Tom & \"J\" <b>", "a\\b|c*/d\n\tE", "3rd"};

std::string written(ExportFormat format, const FormatOptions& options = {}) {
    const auto file =
        PaletteExport::data(format, kColours, kNames, "R&D \"x\"*/\ny", options).value_or(Bytes{});
    return std::string(asText(file));
}

/// The file that stands for the format, with the inks filled in: they depend on the profile, how
/// they are written does not.
std::string golden(ExportFormat format) {
    const auto path = std::string(TINTRA_GOLDEN "/palette.").append(fileExtension(format));
    std::string text(asText(std::get<Bytes>(readFile(path))));
    for (std::size_t at = 0; at < kColours.size(); ++at) {
        const auto place = fmt::format("@INKS {}@", at + 1);
        const auto [c, m, y, k] = kColours[at].cmyk();
        const auto inks = fmt::format("{}, {}, {}, {}", std::lrint(c * 100), std::lrint(m * 100),
                                      std::lrint(y * 100), std::lrint(k * 100));
        const auto found = text.find(place);
        if (found != std::string::npos) text.replace(found, place.size(), inks);
    }
    return text;
}

void expectGoldenTexts() {
    for (const auto format : {json, xml, html, markdown, svg, css, scss, sass, less, gpl})
        EXPECT_EQ(written(format), golden(format));
}

TEST(ExportText, HasTheLayoutOfItsFormat) {
    expectGoldenTexts();
}

TEST(ExportText, KeepsItsPointsUnderACommaLocale) {
    const CommaLocale comma;
    expectGoldenTexts();
    if (!comma.reachesC()) GTEST_SKIP() << "no comma locale for C: only C++ streams were tried";
}

TEST(ExportText, FollowsTheHexOptions) {
    struct Row {
        ExportFormat format;
        std::string_view part;
    };
    const Row rows[] = {
        {json, R"("hex": "0000FF80")"},  {xml, R"(hex="0000FF80")"}, {html, "background:#0000FF80"},
        {html, "<code>0000FF80</code>"}, {markdown, "| 0000FF80 |"}, {svg, R"("#0000FF")"},
        {css, ": #0000FF80;"},           {less, ": #0000FF80;"},
    };
    for (const auto& [format, part] : rows) {
        const auto text = written(format, {.cssUppercase = true, .cssPrefixHash = false});
        EXPECT_NE(text.find(part), std::string::npos) << text;
    }
}

TEST(ExportText, FollowsTheSelectedSpaceExceptInGpl) {
    auto& profiles = ColorProfiles::shared();
    profiles.selectRGB("Display P3");
    const Entry red[] = {{{1, 0, 0, 1}, "Red"}};
    const auto text = PaletteExport::xml("", red, {});
    const auto gimp = PaletteExport::gpl("", red);
    profiles.selectRGB(ColorProfiles::kDefaultRgb);
    // The well-known Display P3 coordinates of sRGB red.
    EXPECT_NE(text.find("hex=\"#ea3323\" r=\"234\" g=\"51\" b=\"35\""), std::string::npos) << text;
    EXPECT_NE(gimp.find("255   0   0\tRed"), std::string::npos) << gimp;
}

TEST(ExportText, AnEmptySvgIsOneSquareWide) {
    EXPECT_EQ(PaletteExport::svg({}, {}), "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"80\" "
                                          "height=\"80\" viewBox=\"0 0 80 80\">\n</svg>");
}

TEST(ExportNames, NeverRepeatInAList) {
    const std::vector<WashColor> colours(7);
    const Names names{"Red", "Red", "Red 2", "Red", ""};
    const auto entries = PaletteExport::entries(colours, names);
    const auto nearest = entries[4].name; // the colours without a name are all the same black
    EXPECT_FALSE(nearest.empty());
    const std::string expected[] = {"Red",   "Red 2",        "Red 2 2",     "Red 3",
                                    nearest, nearest + " 2", nearest + " 3"};
    for (std::size_t at = 0; at < colours.size(); ++at)
        EXPECT_EQ(entries[at].name, expected[at]);
}

TEST(ExportNames, NeverRepeatAsVariables) {
    const Entry entries[] = {{{}, "Red!"}, {{}, "Red"}, {{}, "red 2"}, {{}, "?"}};
    EXPECT_EQ(PaletteExport::sass("x", entries, {}),
              "// x\n$red: #000000\n$red-2: #000000\n$red-2-2: #000000\n$colour: #000000\n");
}

TEST(ExportFormats, AreFoundByIdentifierAndExtension) {
    for (const auto format : allExportFormats()) {
        EXPECT_EQ(exportFormat(rawValue(format)), format);
        EXPECT_EQ(exportFormatForExtension(fileExtension(format)), format);
        EXPECT_EQ(PaletteExport::data(format, {}, {}, "x", {}), std::nullopt);
    }
    EXPECT_EQ(exportFormatForExtension("MD"), markdown);
    EXPECT_EQ(exportFormat("md"), std::nullopt);
}

} // namespace
} // namespace tintra
