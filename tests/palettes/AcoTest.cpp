#include "palettes/PaletteFile.h"
#include "tests/palettes/SmallFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tintra {
namespace {

using namespace test;
using PaletteFile::LeftOut;

unsigned hundredths(double value) {
    return static_cast<std::uint16_t>(static_cast<std::int16_t>(value * 100));
}

TEST(Aco, ConvertsEverySpace) {
    const struct {
        unsigned space;
        std::vector<unsigned> values;
        std::string_view identity;
    } rows[] = {
        {0, {65535, 32768, 0, 9}, "FF8000FF"},
        {1, {21845, 65535, 65535, 0}, "00FF00FF"}, // a third of a turn
        {1, {65535, 65535, 65535, 0}, "FF0000FF"}, // a whole turn
        {1, {10923, 32767, 65535, 0}, "FFFF80FF"},
        {8, {2000, 0, 0, 0}, "333333FF"},
        {8, {65535, 0, 0, 0}, "FFFFFFFF"},
        {7, {hundredths(29.57), hundredths(68.3), hundredths(-112.03), 0}, "0000FFFF"},
        {7, {hundredths(87.82), hundredths(-79.29), hundredths(80.99), 0}, "00FF00FF"},
    };
    for (const auto& row : rows) {
        const auto read = PaletteFile::aco(acoSection(1, 1, {acoRecord(row.space, row.values)}));
        ASSERT_TRUE(read) << row.identity;
        EXPECT_EQ(read->front().color.identity(), row.identity);
    }
}

TEST(Aco, NamesComeOnlyFromAFileOfVersionTwo) {
    const auto red = acoRecord(0, {65535, 0, 0, 0});
    const auto other = acoRecord(9, {1, 2, 3, 4});
    const auto named =
        acoSection(2, 5,
                   {acoNamed(red, std::u16string(u"Rot\0", 4)), acoNamed(red, u"Rouge"),
                    acoNamed(other, u"skipped"), acoNamed(red, u""), acoNamed(red, u"Red")});
    LeftOut leftOut;
    const auto read =
        PaletteFile::aco(ByteBuilder().bytes(named).text("8BIMphry").built(), &leftOut);
    std::vector<std::optional<std::string>> names;
    for (const auto& swatch : *read)
        names.push_back(swatch.name);
    EXPECT_THAT(names, testing::ElementsAre("Rot", "Rouge", std::nullopt, "Red"));
    EXPECT_THAT(leftOut.counts(), testing::ElementsAre(testing::Pair("unknown colour space 9", 1)));

    const auto both = ByteBuilder().bytes(acoSection(1, 1, {red})).bytes(named).built();
    EXPECT_EQ(PaletteFile::aco(both)->size(), 1U);
    EXPECT_EQ(PaletteFile::aco(both)->front().name, std::nullopt);
}

TEST(Aco, KeepsAColourWhoseNameIsCutOff) {
    const auto red = acoRecord(0, {65535, 0, 0, 0});
    const auto endless = ByteBuilder().bytes(red).u32(0xFFFFFFFF).utf16(u"Rot").built();
    LeftOut leftOut;
    const auto read = PaletteFile::aco(acoSection(2, 3, {endless, red}), &leftOut);
    ASSERT_EQ(read->size(), 1U);
    EXPECT_EQ(read->front().name, std::nullopt);
    EXPECT_EQ(leftOut.counts().begin()->second, 2);
    EXPECT_EQ(PaletteFile::aco(acoSection(3, 1, {red})), std::nullopt);
    EXPECT_EQ(PaletteFile::aco(acoSection(1, 0, {red})), std::nullopt);
}

} // namespace
} // namespace tintra
