#include "platform/ColourList.h"

#include "tests/platform/TypedStreamWriter.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tintra {
namespace {

using namespace test;

std::string bytesOf(const PlatformColour& colour) {
    const auto c = *colour.space->toSrgb(colour.components);
    std::string text;
    for (const double v : {c.r, c.g, c.b})
        text += std::to_string(std::lround(v * 255)) + (text.size() < 8 ? " " : "");
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

/// An XML archive of the given colours, each a dictionary's content; further objects begin at
/// number 10.
std::string archive(const std::vector<std::string>& colours, std::string_view furtherObjects = "") {
    const auto uid = [](std::size_t n) {
        return "<dict><key>CF$UID</key><integer>" + std::to_string(n) + "</integer></dict>";
    };
    std::string keys, references, objects;
    for (std::size_t i = 0; i < colours.size(); ++i) {
        keys += uid(3 + i * 2);
        references += uid(4 + i * 2);
        objects += "<string>key" + std::to_string(i) + "</string><dict>" + colours[i] + "</dict>";
    }
    for (auto n = 3 + colours.size() * 2; n < 10; ++n)
        objects += "<true/>";
    return "<?xml version=\"1.0\"?><!DOCTYPE plist PUBLIC \"x\" \"y\"><plist version=\"1.0\"><dict>"
           "<key>$top</key><dict><key>NSKeys</key>" +
           uid(1) + "<key>NSColors</key>" + uid(2) +
           "</dict><key>$objects</key><array><string>$null</string>"
           "<dict><key>NS.objects</key><array>" +
           keys +
           "</array></dict>"
           "<dict><key>NS.objects</key><array>" +
           references + "</array></dict>" + objects + std::string(furtherObjects) +
           "</array></dict></plist>";
}

std::string key(std::string_view name, std::string_view value) {
    return "<key>" + std::string(name) + "</key>" + std::string(value);
}
std::string integer(int value) {
    return "<integer>" + std::to_string(value) + "</integer>";
}
std::string uid(int n) {
    return "<dict>" + key("CF$UID", integer(n)) + "</dict>";
}
std::string basic(int space) {
    return key("NSColorSpace", integer(space));
}

// Base64 of the values.
constexpr auto kHalfRed = "<data>MC41IDAgMCAxAA==</data>"; // 0.5 0 0 1 NUL
constexpr auto kNord = "<data>MC4xMzUwMjgxNTM3IDAuMTUxNzYyMjc2OSAwLjE5MzQyMDkzMTc=</data>";
constexpr auto kPinkP3 = "<data>MSAwLjQgMC44IDAuMjU=</data>"; // 1 0.4 0.8 0.25
constexpr auto kThird = "<data>MC4zMzMzIDAuNQ==</data>";      // 0.3333 0.5

TEST(KeyedArchive, TrustsTheColoursOwnSpaceMost) {
    const struct {
        const char* what;
        std::string colour, further, expected; ///< nothing expected: unusable
        double alpha;
    } rows[] = {
        {"Generic RGB: #2E3440 of the Nord palette", basic(1) + key("NSRGB", kNord), "", "46 52 64",
         1},
        {"device RGB is sRGB", basic(2) + key("NSRGB", kHalfRed), "", "128 0 0", 1},
        {"device grey is an sRGB level", basic(4) + key("NSWhite", kThird), "", "85 85 85", 0.5},
        {"sRGB by NSID",
         basic(1) + key("NSRGB", kNord) + key("NSComponents", kPinkP3) +
             key("NSCustomColorSpace", uid(10)),
         "<dict>" + key("NSID", integer(7)) + "</dict>", "255 102 204", 0.25},
        {"an unknown space falls back to the basic values",
         basic(2) + key("NSRGB", kHalfRed) + key("NSComponents", kPinkP3) +
             key("NSCustomColorSpace", uid(10)),
         "<dict>" + key("NSID", integer(99)) + key("NSICC", kNord) + "</dict>", "128 0 0", 1},
        {"a catalogue colour falls back", basic(6) + key("NSColor", uid(10)),
         "<dict>" + basic(2) + key("NSRGB", uid(11)) + "</dict><dict>" + key("NS.data", kHalfRed) +
             "</dict>",
         "128 0 0", 1},
        {"a catalogue colour that falls back to itself", basic(6) + key("NSColor", uid(4)), "", "",
         1},
        {"a pattern", basic(10) + key("NSImage", uid(10)), "", "", 1},
        {"a number past the end", basic(2) + key("NSRGB", uid(99)), "", "", 1},
        {"two components for three", basic(2) + key("NSRGB", kThird), "", "", 1},
    };
    for (const auto& row : rows) {
        const auto list = readColourList(asBytes(archive({row.colour}, row.further)));
        ASSERT_TRUE(list) << row.what;
        ASSERT_EQ(list->entries.size(), row.expected.empty() ? 0U : 1U) << row.what;
        EXPECT_EQ(list->unusable, row.expected.empty() ? 1 : 0) << row.what;
        if (row.expected.empty()) continue;
        EXPECT_EQ(bytesOf(list->entries[0].colour), row.expected) << row.what;
        EXPECT_EQ(list->entries[0].colour.alpha, row.alpha) << row.what;
    }
}

TEST(KeyedArchive, OpensProfilesAndKeepsDisplayP3) {
    const auto colour =
        basic(1) + key("NSComponents", kPinkP3) + key("NSCustomColorSpace", uid(10));
    const auto p3 = readColourList(
        asBytes(archive({colour}, "<dict>" + key("NSSpaceID", integer(12)) + "</dict>")));
    EXPECT_EQ(p3->entries.at(0).colour.space, ColourSpace::displayP3());

    // A plain profile that this test would not know by number: written, then found by its bytes.
    const std::vector<ColourListEntry> entries{{"a", {ColourSpace::sRGB(), {0.2, 0.4, 0.6}, 1}}};
    auto written = *writeColourList(entries);
    auto text = std::string(asText(written));
    const auto id = text.find("NSID");
    ASSERT_NE(id, std::string::npos);
    text.replace(id, 4, "NoID");
    const auto read = readColourList(asBytes(text));
    ASSERT_EQ(read->entries.size(), 1U);
    EXPECT_NE(read->entries[0].colour.space, ColourSpace::sRGB());
    EXPECT_EQ(bytesOf(read->entries[0].colour), "51 102 153");
}

TEST(KeyedArchive, RefusesWhatUnfoldsWithoutBound) {
    const std::string head = R"(<?xml version="1.0"?><plist version="1.0">)";
    std::string deep = head, references = head + "<string>";
    for (int i = 0; i < 150'000; ++i)
        deep += "<array>";
    for (int i = 0; i < 200'000; ++i)
        references += "&amp;";
    // Arrays of twice the next one: a thousand bytes, two to the fortieth nodes.
    ByteBuilder doubling;
    doubling.text("bplist00");
    constexpr unsigned kLevels = 40;
    for (unsigned i = 0; i < kLevels; ++i)
        doubling.u8(0xA2).u8(i + 1).u8(i + 1);
    doubling.u8(0x09);
    const auto table = doubling.size();
    for (unsigned i = 0; i <= kLevels; ++i)
        doubling.u8(8 + 3 * i);
    doubling.u32(0).u16(0).u8(1).u8(1).u64(kLevels + 1).u64(0).u64(table);
    for (const auto& bad : {asBytes(deep), asBytes(references), ByteView(doubling.built())})
        EXPECT_FALSE(readColourList(bad));
    auto entities = archive({basic(2) + key("NSRGB", kHalfRed)});
    entities.replace(entities.find("PUBLIC"), 6, R"([<!ENTITY a "b">])");
    EXPECT_FALSE(readColourList(asBytes(entities)));
}

TEST(TypedStream, ReadsBothByteOrdersAndAllSpaces) {
    std::vector<StreamColour> colours{
        {1, {0, 0.168627F, 0.211765F, 1}, "space of gamma 1.8"},
        {2, {0.2F, 0.4F, 0.6F, 0.5F}, "device"},
        {4, {0.2F, 1}, "grey"},
        {10, {}, "pattern"},
        {2, {0.2F, 0.4F}, "too few"},
        {2, {std::nanf(""), 0, 0, 1}, "no number"},
        {2, {1, 0, 0, 1}, std::string(300, 'n')},
    };
    // Enough objects that references grow beyond one byte.
    for (int i = 0; i < 300; ++i)
        colours.push_back({2, {1, 0, 0, 1}, "n" + std::to_string(i)});
    for (const auto order : {ByteOrder::littleEndian, ByteOrder::bigEndian}) {
        const auto list = readColourList(TypedStreamWriter(order).list(colours));
        ASSERT_TRUE(list);
        ASSERT_EQ(list->entries.size(), 304U);
        EXPECT_EQ(list->unusable, 3);
        EXPECT_EQ(list->entries[0].colour.space, ColourSpace::genericRGB());
        EXPECT_EQ(bytesOf(list->entries[1].colour), "51 102 153");
        EXPECT_EQ(list->entries[1].colour.alpha, 0.5);
        EXPECT_EQ(bytesOf(list->entries[2].colour), "51 51 51");
        EXPECT_EQ(list->entries[3].key, std::string(300, 'n'));
        EXPECT_EQ(list->entries.back().key, "n299");
    }
}

TEST(TypedStream, KeepsWhatStandsBeforeTheBreak) {
    const auto whole = TypedStreamWriter(ByteOrder::littleEndian)
                           .list({{2, {1, 0, 0, 1}, "a"}, {2, {0, 1, 0, 1}, "b"}});
    std::size_t most = 0;
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
        const auto list = readColourList(cut);
        if (!list) continue;
        EXPECT_GE(list->entries.size(), most);
        most = list->entries.size();
        EXPECT_EQ(most + static_cast<std::size_t>(list->missing), 2U) << "at " << length;
    }
    EXPECT_EQ(most, 2U);
}

TEST(WriteColourList, GivesBackNamesColoursAndAlpha) {
    const auto srgb = ColourSpace::sRGB();
    const std::vector<ColourListEntry> entries{
        {"plain", {srgb, {0.1, 0.2, 0.3}, 1}},
        {"Größe 🎨 <&>", {srgb, {1, 0, 1.0 / 3}, 0.25}},
        {"extended", {srgb, {1.2, -0.3, 0.5}, 0}},
    };
    const auto written = writeColourList(entries);
    ASSERT_TRUE(written);
    // Old readers see Generic RGB, with alpha only where it is below 1: black and white are safe.
    const auto text = asText(*written);
    EXPECT_NE(text.find("0.1 0.2 0.3 1"), std::string_view::npos);
    const auto read = readColourList(*written);
    ASSERT_EQ(read->entries.size(), entries.size());
    for (std::size_t i = 0; i < entries.size(); ++i) {
        EXPECT_EQ(read->entries[i].key, entries[i].key);
        EXPECT_EQ(read->entries[i].colour.space, srgb);
        EXPECT_EQ(read->entries[i].colour.alpha, entries[i].colour.alpha);
        for (std::size_t c = 0; c < 3; ++c) // ten decimals are written
            EXPECT_NEAR(read->entries[i].colour.components[c], entries[i].colour.components[c],
                        1e-10);
    }
    const std::vector<ColourListEntry> infinite{{"a", {srgb, {INFINITY, 0, 0}, 1}}};
    EXPECT_FALSE(writeColourList(infinite));
}

} // namespace
} // namespace tintra
