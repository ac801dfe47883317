#include "state/Codec.h"
#include "state/PreferencesCodec.h"
#include "state/StoredWorkspace.h"

#include <gtest/gtest.h>

#include <limits>

namespace tintra {
namespace {

template <class Case>
void everyCaseComesBack(std::span<const Case> cases) {
    ASSERT_FALSE(cases.empty());
    for (const auto value : cases) {
        const auto json = Codec<Case>::encode(value);
        EXPECT_EQ(Codec<Case>::decode(json), value) << json;
    }
    EXPECT_EQ(Codec<Case>::decode("no such case"), std::nullopt);
    EXPECT_EQ(Codec<Case>::decode(1), std::nullopt);
}

TEST(Codec, EveryTextOfAClosedListDecodesToItsCase) {
    everyCaseComesBack(allChoices<Appearance>());
    everyCaseComesBack(allChoices<TypeSize>());
    everyCaseComesBack(allChoices<SwatchBackdrop>());
    everyCaseComesBack(allChoices<PickerStyle>());
    everyCaseComesBack(allChoices<EditorSpace>());
    everyCaseComesBack(allChoices<SettingsTab>());
    everyCaseComesBack(allChoices<HotKeyCombo>());
    everyCaseComesBack(allChoices<PaletteDisplay>());
    everyCaseComesBack(allChoices<PictureShare>());
    everyCaseComesBack(allChoices<OpeningState>());
    everyCaseComesBack(allChoices<HangSide>());
    everyCaseComesBack(allChoices<CompactOrientation>());
    everyCaseComesBack(allHarmonyModes());
    everyCaseComesBack(allBlendSpaces());
    everyCaseComesBack(allExportFormats());
    everyCaseComesBack(allColourMatches());
    everyCaseComesBack(ColorFormat::all());
}

TEST(Codec, NumbersAreTakenOnlyAsWhatTheyAre) {
    EXPECT_EQ(Codec<int>::decode(3.0), 3);
    EXPECT_EQ(Codec<int>::decode(3.5), std::nullopt);
    EXPECT_EQ(Codec<int>::decode(1e12), std::nullopt);
    EXPECT_EQ(Codec<int>::decode("3"), std::nullopt);
    EXPECT_EQ(Codec<std::size_t>::decode(-1), std::nullopt);
    EXPECT_EQ(Codec<double>::decode(*parsedJson("1e400")), std::nullopt);
}

TEST(Codec, ColoursKeepEveryBitAndWhatJsonCannotHoldBecomesZero) {
    const WashColor wide{-0.1, 1.0 / 3, 1.23456789012345678, 0.5};
    EXPECT_EQ(Codec<WashColor>::decode(*parsedJson(jsonText(Codec<WashColor>::encode(wide)))),
              wide);
    const WashColor broken{std::numeric_limits<double>::quiet_NaN(), 0.5,
                           std::numeric_limits<double>::infinity(), 1};
    EXPECT_EQ(Codec<WashColor>::decode(Codec<WashColor>::encode(broken)),
              (WashColor{0, 0.5, 0, 1}));
    EXPECT_EQ(Codec<WashColor>::decode(*parsedJson(R"({"r":1,"g":0,"b":0})")),
              (WashColor{1, 0, 0, 1}));
    for (const auto* wrong : {R"({"r":1,"g":0})", R"({"r":1,"g":0,"b":"0"})", "[1,0,0]",
                              R"({"r":1,"g":0,"b":0,"a":null})"})
        EXPECT_EQ(Codec<WashColor>::decode(*parsedJson(wrong)), std::nullopt) << wrong;
}

TEST(Codec, TextThatIsNoUtf8IsStillWritten) {
    EXPECT_EQ(jsonText(Codec<std::string>::encode("a\xFFz")), "\"a\xEF\xBF\xBDz\"");
}

TEST(Codec, ALocationKeepsItsAccessAndNeedsItsPath) {
    PaletteLocation location{.id = *Uuid::fromText("00000000-0000-4000-8000-000000000007"),
                             .nickname = "Studio",
                             .path = "/palettes",
                             .tag = "2026",
                             .isEnabled = false,
                             .includesStylesheets = true,
                             .bookmark = Bytes{std::byte{0}, std::byte{255}, std::byte{7}}};
    EXPECT_EQ(Codec<PaletteLocation>::decode(Codec<PaletteLocation>::encode(location)), location);
    auto json = Codec<PaletteLocation>::encode(location);
    json["bookmark"] = "no base64!";
    EXPECT_EQ(Codec<PaletteLocation>::decode(json)->bookmark, std::nullopt);
    json.erase("path");
    EXPECT_EQ(Codec<PaletteLocation>::decode(json), std::nullopt);
}

StoredWorkspace fullWorkspace() {
    const auto id = [](const char* digit) {
        return *Uuid::fromText(std::string("00000000-0000-4000-8000-00000000000") + digit);
    };
    StoredWorkspace workspace;
    workspace.first = {-0.25, 1.5, 0.1, 1};
    workspace.last = {0, 0, 0, 0.3};
    workspace.stepCount = 7;
    workspace.blendSpace = BlendSpace::okLab;
    workspace.mode = HarmonyMode::triadic;
    workspace.shadesPerAnchor = 3;
    workspace.customPalette = {{1, 0, 0, 1}, {0, 1, 0, 0.5}};
    workspace.customPaletteNames = {"", "Grün 🌱 ‏ירוק"};
    workspace.paletteIsDirty = true;
    workspace.currentPaletteName = "Sea";
    workspace.currentPalettePath = "/p/Sea.ase";
    workspace.isCollapsed = true;
    workspace.frame = StoredFrame{-10, 20.5, 960, 600};
    workspace.modeSizes = {{HarmonyMode::ramp, {700, 300}}};
    workspace.compactOrientation = CompactOrientation::vertical;
    workspace.selectedSwatch = 1;
    workspace.id = id("1");
    workspace.swatchIDs = {id("2"), id("3")};
    workspace.fileStamp = FileStamp{1'760'000'000'123'456'789, 1'234, 0xFFFF'FFFF'FFFF'FFFF};
    return workspace;
}

TEST(StoredWorkspace, ComesBackWhole) {
    const auto full = fullWorkspace();
    EXPECT_EQ(decodedWorkspace(encodedWorkspace(full)), full);
    EXPECT_EQ(decodedWorkspaces(encodedWorkspaces({full, StoredWorkspace{}}))->front(), full);
    const StoredWorkspace empty;
    EXPECT_EQ(decodedWorkspace(encodedWorkspace(empty)), empty);
}

constexpr auto kOldest = R"("first":{"r":0,"g":0,"b":0,"a":1},"last":{"r":1,"g":1,"b":1,"a":1},)"
                         R"("customPalette":[{"r":1,"g":0,"b":0,"a":1},{"r":0,"g":0,"b":1,"a":1}])";

std::optional<StoredWorkspace> oldWith(const std::string& more) {
    return decodedWorkspace("{" + std::string(kOldest) + more + "}");
}

TEST(StoredWorkspace, RecordsOfOtherVersionsStillLoad) {
    const auto old = oldWith("");
    ASSERT_TRUE(old);
    EXPECT_EQ(old->stepCount, 5);
    EXPECT_EQ(old->mode, HarmonyMode::paletteBuilder);
    EXPECT_EQ(old->id, std::nullopt);
    EXPECT_EQ(old->customPaletteNames, (std::vector<std::string>{"", ""}));

    using Names = std::vector<std::string>;
    EXPECT_EQ(oldWith(R"(,"customPaletteNames":{"1":"Blue"})")->customPaletteNames,
              (Names{"", "Blue"}));
    EXPECT_EQ(oldWith(R"(,"swatchIDs":["00000000-0000-4000-8000-000000000001",)"
                      R"("00000000-0000-4000-8000-000000000002"],"customPaletteNames":)"
                      R"({"00000000-0000-4000-8000-000000000002":"Blue"})")
                  ->customPaletteNames,
              (Names{"", "Blue"}));
    EXPECT_EQ(oldWith(R"(,"customPaletteNames":[7,"Blue","more"])")->customPaletteNames,
              (Names{"", "Blue"}))
        << "names stay in step";
    EXPECT_EQ(oldWith(R"(,"mode":"of a later version","stepCount":1e9)")->mode,
              HarmonyMode::paletteBuilder);
    EXPECT_EQ(oldWith(R"(,"selectedSwatch":2)")->selectedSwatch, std::nullopt);
    EXPECT_EQ(oldWith(R"(,"swatchIDs":["00000000-0000-4000-8000-000000000001"])")->swatchIDs,
              std::nullopt);
    EXPECT_EQ(oldWith(R"(,"swatchIDs":["00000000-0000-4000-8000-000000000001","x"])")->swatchIDs,
              std::nullopt);
}

TEST(StoredWorkspace, WhatIsNoRecordIsNone) {
    for (const auto* damaged :
         {"", "{", "[]", "null", "{}", R"({"first":{"r":0,"g":0,"b":0}})",
          R"({"first":{"r":0,"g":0,"b":0},"last":{"r":0,"g":0,"b":0},"customPalette":[1]})"})
        EXPECT_EQ(decodedWorkspace(damaged), std::nullopt) << damaged;
    EXPECT_EQ(decodedWorkspaces("{}"), std::nullopt);
    EXPECT_EQ(decodedWorkspaces("[{}]")->size(), 0U);
}

TEST(StoredWorkspace, HoldsNoMoreThanAWindowCan) {
    StoredWorkspace large;
    large.customPalette.assign(300, {});
    large.customPaletteNames.assign(300, "x");
    const auto read = decodedWorkspace(encodedWorkspace(large));
    EXPECT_EQ(read->customPalette.size(), 256U);
    EXPECT_EQ(read->customPaletteNames.size(), 256U);
}

} // namespace
} // namespace tintra
