#include "palettes/PaletteFile.h"

#include <gtest/gtest.h>

namespace tintra {
namespace {

using Name = std::optional<std::string>;

TEST(Gpl, ReadsColourLinesAndSkipsOthers) {
    const struct {
        std::string_view line, identity; ///< no identity: no colour
        Name name;
    } rows[] = {
        {"255 128 0 Orange", "FF8000FF", "Orange"},
        {"  1\t 2  003\tTab and blanks \t", "010203FF", "Tab and blanks"},
        {"1 2 3", "010203FF", {}},
        {"1 2 3\tUntitled", "010203FF", {}},
        {"1 2 3 255 Red", "010203FF", "255 Red"},
        {"1\u00a02\u20033\u00a0Blanks of Unicode\u3000", "010203FF", "Blanks of Unicode"},
        {"0 0 0 #000", "000000FF", "#000"},
        {"256 0 0 Too large", "", {}},
        {"1 2 99999999999999999999 Overflow", "", {}},
        {"1 2", "", {}},
        {"1 2 3a", "", {}},
        {"1 2 3\u00e9", "", {}},
        {"-1 2 3", "", {}},
        {"+1 2 3", "", {}},
        {"1.0 2 3", "", {}},
        {"#1 2 3", "", {}},
        {"Columns: 3", "", {}},
        {"\u00a0", "", {}},
    };
    for (const auto& row : rows)
        for (const std::string_view end : {"\n", "\r\n", "\r", ""}) {
            const auto text = "GIMP Palette\nName: 1 2 3\n" + std::string(row.line).append(end);
            const auto read = PaletteFile::gpl(asBytes(text));
            ASSERT_EQ(read.has_value(), !row.identity.empty()) << row.line;
            if (!read) continue;
            ASSERT_EQ(read->size(), 1U) << row.line;
            EXPECT_EQ(read->front().color.identity(), row.identity) << row.line;
            EXPECT_EQ(read->front().name, row.name) << row.line;
        }
}

TEST(Gpl, FallsBackToLatin1AndWantsTheSignatureFirst) {
    EXPECT_EQ(PaletteFile::gpl(asBytes("GIMP Palette\n1 2 3 Gr\xFCn"))->front().name, "Grün");
    EXPECT_EQ(PaletteFile::gpl(asBytes("\xEF\xBB\xBFGIMP Palette\n1 2 3 a")), std::nullopt);
    EXPECT_EQ(PaletteFile::gpl(asBytes("GIMP Palette 1 2 3")), std::nullopt);
    PaletteFile::LeftOut leftOut;
    PaletteFile::gpl(asBytes("GIMP Palette\n# 1\n300 0 0 a\n1 2\n"), &leftOut);
    EXPECT_EQ(leftOut.counts().begin()->second, 2);
}

} // namespace
} // namespace tintra
