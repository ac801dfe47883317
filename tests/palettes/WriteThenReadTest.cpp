#include "palettes/PaletteExport.h"
#include "palettes/PaletteFile.h"

#include <gtest/gtest.h>

#include <string>

// Every format that is both written and read gives back the names, the order, the colours in 8 bits
// and, where it holds it, the alpha. What the readers must make of files made elsewhere is tested
// with them; this is about nothing getting lost on the way out.

namespace tintra {
namespace {

using Names = std::vector<std::optional<std::string>>;

const std::vector<WashColor> kColours{
    {1, 0.5, 0, 1}, {0, 0, 1, 0.5}, {1, 1, 1, 1}, {0.1, 0.2, 0.3, 0.25}, {1.2, -0.1, 0.5, 1}};

std::vector<PaletteFile::Swatch> readBack(ExportFormat format, const Names& names) {
    const auto file = PaletteExport::data(format, kColours, names, "Name: 1 2 3\n255 0 0", {});
    const auto kind = PaletteFile::kindOf("x." + std::string(fileExtension(format)));
    if (!file || !kind) return {};
    return PaletteFile::read(*file, *kind).value_or(std::vector<PaletteFile::Swatch>{});
}

void expectColours(ExportFormat format, const std::vector<PaletteFile::Swatch>& swatches) {
    ASSERT_EQ(swatches.size(), kColours.size()) << rawValue(format);
    for (std::size_t at = 0; at < kColours.size(); ++at) {
        auto expected = kColours[at];
        if (!holdsAlpha(format)) expected.a = 1;
        EXPECT_EQ(swatches[at].color.identity(), expected.identity()) << rawValue(format) << at;
    }
}

TEST(WriteThenRead, PaletteFilesKeepEveryName) {
    const Names names{"Tom & \"J\" <b>", "\u00C9t\u00E9 \U0001F3A8", "255 0 0 three",
                      "# no \\ comment", std::string(300, 'n')};
    for (const auto format : {ExportFormat::ase, ExportFormat::clr, ExportFormat::gpl}) {
        const auto swatches = readBack(format, names);
        expectColours(format, swatches);
        for (std::size_t at = 0; at < swatches.size(); ++at)
            EXPECT_EQ(swatches[at].name, names[at]) << rawValue(format);
    }
}

TEST(WriteThenRead, StylesheetsKeepTheWordsOfNames) {
    const Names names{"Ocean Blue", "Ocean Blue", "Robin\u2019s Egg", "Gr\u00FCn 50", "Url(x);"};
    const Names read{"Ocean Blue", "Ocean Blue 2", "Robins Egg", "Grun 50", "Url X"};
    for (const auto format :
         {ExportFormat::css, ExportFormat::scss, ExportFormat::sass, ExportFormat::less}) {
        const auto swatches = readBack(format, names);
        expectColours(format, swatches);
        for (std::size_t at = 0; at < swatches.size(); ++at)
            EXPECT_EQ(swatches[at].name, read[at]) << rawValue(format);
    }
}

// Components outside sRGB are kept where the file holds numbers of any size.
TEST(WriteThenRead, ColourListsKeepTheExtendedRange) {
    const auto swatches = readBack(ExportFormat::clr, {});
    ASSERT_EQ(swatches.size(), kColours.size());
    for (std::size_t at = 0; at < kColours.size(); ++at) {
        EXPECT_NEAR(swatches[at].color.r, kColours[at].r, 1e-6);
        EXPECT_NEAR(swatches[at].color.g, kColours[at].g, 1e-6);
        EXPECT_NEAR(swatches[at].color.b, kColours[at].b, 1e-6);
        EXPECT_NEAR(swatches[at].color.a, kColours[at].a, 1e-6);
    }
}

} // namespace
} // namespace tintra
