#include "palettes/PaletteFile.h"
#include "tests/palettes/SmallFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tintra {
namespace {

using namespace test;
using PaletteFile::LeftOut;
using testing::ElementsAre;
using testing::Pair;

const std::vector<float> kRed{1, 0, 0};

TEST(Ase, ConvertsEveryModel) {
    const struct {
        std::string_view model;
        std::vector<float> values;
        std::string_view identity;
    } rows[] = {
        {"RGB ", {1, 0.5F, 0}, "FF8000FF"},
        {"RGB ", {-3, 7, std::numeric_limits<float>::quiet_NaN()}, "00FF00FF"},
        {"GRAY", {0.2F}, "333333FF"},
        {"LAB ", {1, 0, 0}, "FFFFFFFF"},
        // The primaries of sRGB in L*a*b* under D50 (B. Lindbloom's calculator).
        {"LAB ", {0.542917F, 80.8125F, 69.8851F}, "FF0000FF"},
        {"LAB ", {0.295676F, 68.2988F, -112.0294F}, "0000FFFF"},
    };
    for (const auto& row : rows) {
        const auto read = PaletteFile::ase(aseFile({aseEntry(u"x", row.model, row.values)}));
        ASSERT_TRUE(read) << row.model;
        EXPECT_EQ(read->front().color.identity(), row.identity) << row.model;
    }
}

TEST(Ase, CleansNames) {
    const std::pair<std::u16string, std::optional<std::string>> rows[] = {
        {u"Zinnober", "Zinnober"},
        {u" \tTwo\u0007words\u00a0\n", "Two words"},
        {u"unTITLED", std::nullopt},
        {u"   ", std::nullopt},
        {u"", std::nullopt},
        {u"Gr\u00fcn \U0001F7E2", "Grün 🟢"},
        {std::u16string(u"lone ") + char16_t{0xD800}, "lone \uFFFD"},
        {std::u16string(u"a\0b\0", 4), "a b"},
    };
    for (const auto& [name, expected] : rows)
        EXPECT_EQ(PaletteFile::ase(aseFile({aseEntry(name, "RGB ", kRed)}))->front().name,
                  expected);
}

TEST(Ase, FlattensGroupsAndTellsWhatItSkips) {
    const auto group = ByteBuilder().u16(0xC001).u32(6).u16(2).utf16(u"G").u16(0).built();
    const auto groupEnd = ByteBuilder().u16(0xC002).u32(0).built();
    const auto file = aseFile({group, aseEntry(u"a", "RGB ", kRed), groupEnd,
                               aseEntry(u"b", "Gray", {0.5F}), aseEntry(u"c", "Gray", {0.5F}),
                               aseEntry(u"d", "LAB ", {0.5F}), aseEntry(u"e", "GRAY", {0.5F})});
    LeftOut leftOut;
    const auto read = PaletteFile::ase(file, &leftOut);
    ASSERT_EQ(read->size(), 2U);
    EXPECT_EQ(read->at(0).name, "a");
    EXPECT_EQ(read->at(1).name, "e");
    EXPECT_THAT(leftOut.counts(),
                ElementsAre(Pair("unknown colour model “Gray”", 2), Pair("values cut off", 1)));
}

TEST(Ase, EndsAtANameWithoutLength) {
    const auto nameless =
        ByteBuilder().u16(1).u32(20).u16(0).text("RGB ").u32(0).u32(0).u32(0).u16(0).built();
    const auto entry = aseEntry(u"a", "RGB ", kRed);
    LeftOut leftOut;
    EXPECT_EQ(PaletteFile::ase(aseFile({entry, nameless, entry, entry}), &leftOut)->size(), 1U);
    EXPECT_THAT(leftOut.counts(), ElementsAre(Pair("a name that cannot be read", 1),
                                              Pair("after a name that cannot be read", 2)));
    EXPECT_EQ(PaletteFile::ase(aseFile({nameless})), std::nullopt);
}

TEST(Ase, DoesNotTrustCountsAndLengths) {
    const auto entry = aseEntry(u"a", "RGB ", kRed);
    EXPECT_EQ(PaletteFile::ase(aseFile({entry}, 0xFFFFFFFF))->size(), 1U);
    auto huge = aseFile({entry, entry});
    huge[15] = huge[14] = std::byte{0xFF}; // the first block's length
    EXPECT_EQ(PaletteFile::ase(huge)->size(), 1U);
    std::vector<Bytes> models;
    for (char c = 'A'; c <= 'z'; ++c)
        models.push_back(aseEntry(u"a", std::string(4, c), {}));
    LeftOut leftOut;
    EXPECT_EQ(PaletteFile::ase(aseFile(models), &leftOut), std::nullopt);
    EXPECT_LT(leftOut.counts().size(), 20U);
    int total = 0;
    for (const auto& [reason, count] : leftOut.counts())
        total += count;
    EXPECT_EQ(static_cast<std::size_t>(total), models.size());
}

} // namespace
} // namespace tintra
