#include "palettes/PaletteFile.h"
#include "platform/ColourList.h"
#include "platform/File.h"
#include "tests/palettes/SmallFiles.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tintra {
namespace {

using namespace test;
using PaletteFile::Kind;

TEST(PaletteFile, ChoosesTheReaderByExtensionAlone) {
    const std::pair<const char*, std::optional<Kind>> rows[] = {
        {"a.ase", Kind::ase},         {"b.ASE", Kind::ase},        {"dir.gpl/c.aco", Kind::aco},
        {"d.x.gpl", Kind::gpl},       {"e.Clr", Kind::clr},        {"f.css", Kind::stylesheet},
        {"g.sass", Kind::stylesheet}, {"ase", std::nullopt},       {".ase", std::nullopt},
        {"h.", std::nullopt},         {"i.ase.bak", std::nullopt}, {"", std::nullopt},
    };
    for (const auto& [file, kind] : rows)
        EXPECT_EQ(PaletteFile::kindOf(file), kind) << file;
}

TEST(PaletteFile, ReadsNamedFilesAndNothingElse) {
    const auto folder = std::filesystem::path(testing::TempDir()) / "tintra-readers";
    std::filesystem::create_directories(folder / "folder.ase");
    const auto content = aseFile({aseEntry(u"Rot", "RGB ", {1, 0, 0})});
    for (const auto* name : {"good.ASE", "wrong.aco", "wrong.txt"})
        ASSERT_EQ(writeFile(folder / name, content, Existing::replace), std::nullopt);
    EXPECT_EQ(PaletteFile::readNamed(folder / "good.ASE")->front().name, "Rot");
    for (const auto* name : {"wrong.aco", "wrong.txt", "folder.ase", "absent.ase"})
        EXPECT_EQ(PaletteFile::readNamed(folder / name), std::nullopt) << name;
    std::filesystem::remove_all(folder);
}

TEST(PaletteFile, KeepsTheKeyOfAColourListButForOuterSpace) {
    const PlatformColour violet{ColourSpace::sRGB(), {1.25, -0.25, 0.5}, 0.5};
    const std::pair<const char*, std::optional<std::string>> rows[] = {{" Out er ", "Out er"},
                                                                       {" ", std::nullopt},
                                                                       {"UntitleD", std::nullopt},
                                                                       {"a\tb\x01", "a\tb\x01"}};
    for (const auto& [key, name] : rows) {
        const std::vector<ColourListEntry> list{{key, violet}};
        const auto read = PaletteFile::clr(*writeColourList(list));
        ASSERT_TRUE(read) << key;
        EXPECT_EQ(read->front().name, name);
        EXPECT_EQ(read->front().color, (WashColor{1.25, -0.25, 0.5, 0.5})); // unclamped
    }
}

TEST(PaletteFile, ReadsTruncatedFilesAsFarAsTheyGo) {
    const auto red = acoRecord(0, {65535, 0, 0, 0});
    const auto entry = aseEntry(u"Rot", "RGB ", {1, 0, 0});
    const std::vector<ColourListEntry> list{{"a", {ColourSpace::sRGB(), {1, 0, 0}, 1}},
                                            {"b", {ColourSpace::sRGB(), {0, 1, 0}, 0.5}}};
    const auto gpl = asBytes("GIMP Palette\n1 2 3 a\n4 5 6 b\n7 8 9 c\n");
    const std::pair<Kind, Bytes> rows[] = {
        {Kind::ase, aseFile({entry, entry, entry})},
        {Kind::aco, acoSection(1, 3, {red, red, red})},
        {Kind::aco, acoSection(2, 2, {acoNamed(red, u"Rot"), acoNamed(red, u"Rouge")})},
        {Kind::gpl, Bytes(gpl.begin(), gpl.end())},
        {Kind::clr, *writeColourList(list)},
    };
    for (const auto& [kind, whole] : rows) {
        std::size_t most = 0;
        for (std::size_t length = 0; length <= whole.size(); ++length) {
            // A copy of its own, so that a sanitizer sees a read past the end.
            const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
            const auto read = PaletteFile::read(cut, kind);
            const auto count = read ? read->size() : 0;
            EXPECT_GE(count, most) << "at " << length;
            most = count;
        }
        EXPECT_GE(most, 2U);
    }
}

} // namespace
} // namespace tintra
