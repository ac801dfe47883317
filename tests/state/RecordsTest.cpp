#include "state/Codec.h"
#include "state/StoredWorkspace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace tintra {
namespace {

using testing::ElementsAre;

/// Every case of a list has its text, in menu order, and no other text has a case.
template <class Case>
void expectTexts(const std::vector<std::string>& raws,
                 std::span<const Case> cases = allChoices<Case>()) {
    ASSERT_EQ(cases.size(), raws.size());
    for (std::size_t i = 0; i < raws.size(); ++i) {
        EXPECT_EQ(Codec<Case>::encode(cases[i]), Json(raws[i]));
        EXPECT_EQ(Codec<Case>::decode(Json(raws[i])), cases[i]);
    }
    for (const Json& other : {Json(""), Json("System"), Json(0), Json(nullptr)})
        EXPECT_FALSE(Codec<Case>::decode(other)) << other;
}

TEST(Choices, ArePersistedByTheirTexts) {
    expectTexts<Appearance>({"system", "light", "dark"});
    expectTexts<TypeSize>({"regular", "larger", "largest"});
    expectTexts<SwatchBackdrop>({"checkerboard", "ground", "white", "black", "custom", "strips"});
    expectTexts<PickerStyle>({"plane", "wheel"});
    expectTexts<EditorSpace>({"rgb", "hsb", "hsl", "cmyk", "lab", "oklch"});
    expectTexts<SettingsTab>({"general", "library", "colour", "code", "shortcuts"});
    expectTexts<HotKeyCombo>(
        {"optionCommandP", "controlOptionCommandP", "optionCommandK", "controlOptionCommandC"});
    expectTexts<PaletteDisplay>({"columns", "tiles"});
    expectTexts<PictureShare>({"third", "half", "twoThirds"});
    expectTexts<OpeningState>({"resume", "clean"});
    expectTexts<HangSide>({"left", "right"});
    expectTexts<CompactOrientation>({"horizontal", "vertical"});
    expectTexts<BlendSpace>({"sRGB", "okLab"}, allBlendSpaces());
    for (const auto mode : allHarmonyModes())
        EXPECT_EQ(Codec<HarmonyMode>::decode(Codec<HarmonyMode>::encode(mode)), mode);
    for (const auto format : ColorFormat::all())
        EXPECT_EQ(Codec<ColorFormat>::decode(Codec<ColorFormat>::encode(format)), format);
    for (const auto format : allExportFormats())
        EXPECT_EQ(Codec<ExportFormat>::decode(Codec<ExportFormat>::encode(format)), format);
}

TEST(Codec, TakesOnlyNumbersThatFit) {
    for (const auto* text :
         {"1.5", "2147483648", "-1e300", "18446744073709551615", "true", "\"3\""})
        EXPECT_FALSE(Codec<int>::decode(*parsedJson(text))) << text;
    EXPECT_EQ(Codec<int>::decode(*parsedJson("-2147483648")), -2147483647 - 1);
    EXPECT_EQ(Codec<int>::decode(*parsedJson("5.0")), 5);
    EXPECT_FALSE(Codec<std::size_t>::decode(Json(-1)));
    EXPECT_FALSE(parsedJson("[1e999]"));
}

TEST(Codec, RefusesWhatNestsTooDeepButNotTextThatLooksLikeIt) {
    const auto nested = [](std::size_t levels) {
        return std::string(levels, '[') + std::string(levels, ']');
    };
    EXPECT_TRUE(parsedJson(nested(64)));
    EXPECT_FALSE(parsedJson(nested(65)));
    EXPECT_TRUE(parsedJson("[\"\\\"" + std::string(99, '{') + "\"]"));
}

TEST(Codec, WritesNothingThatJsonCannotHold) {
    const WashColor odd{std::nan(""), INFINITY, -INFINITY, 0.5};
    const auto text = jsonText(Json{{"c", Codec<WashColor>::encode(odd)}, {"t", "a\xff\xc3"}});
    const auto document = parsedJson(text);
    ASSERT_TRUE(document) << text;
    EXPECT_EQ(Codec<WashColor>::decode(document->at("c")), (WashColor{0, 0, 0, 0.5}));
    EXPECT_EQ(document->at("t"), "a\uFFFD\uFFFD");
}

TEST(Codec, TakesAColourWithAllItsComponents) {
    EXPECT_EQ(Codec<WashColor>::decode(*parsedJson(R"({"r":1,"g":0,"b":0})")),
              (WashColor{1, 0, 0, 1}));
    for (const auto* wrong : {R"({"r":1,"g":0})", R"({"r":1,"g":0,"b":"0"})", "[1,0,0]",
                              R"({"r":1,"g":0,"b":0,"a":null})"})
        EXPECT_FALSE(Codec<WashColor>::decode(*parsedJson(wrong))) << wrong;
}

// As a window writes it: extended range, an emoji, a swatch without a name.
constexpr std::string_view kWorkspace =
    R"({"first":{"r":1.2345678901234567,"g":-0.1,"b":0.3333333333333333,"a":0.4999},)"
    R"("last":{"r":0.0,"g":0.0,"b":1.0,"a":1.0},"stepCount":7,"blendSpace":"okLab",)"
    R"("mode":"splitComplementary","shadesPerAnchor":3,"customPalette":[)"
    R"({"r":0.1,"g":0.2,"b":0.3,"a":1.0},{"r":0.1,"g":0.2,"b":0.3,"a":1.0}],)"
    R"("customPaletteNames":["Näh \"\\ 👩‍🎨",""],"paletteIsDirty":true,)"
    R"("currentPaletteName":"Ufer","currentPalettePath":"/p/Ufer.ase","isCollapsed":true,)"
    R"("frame":{"x":-1280.5,"y":20.0,"width":640.0,"height":480.0},)"
    R"("modeSizes":{"ramp":{"width":300.0,"height":200.0}},"compactOrientation":"vertical",)"
    R"("selectedSwatch":1,"id":"6F9619FF-8B86-D011-B42D-00C04FC964FF",)"
    R"("swatchIDs":["00000000-0000-4000-8000-00000000000A",)"
    R"("00000000-0000-4000-8000-00000000000B"],"fileStamp":{"modified":1760000000123456789,)"
    R"("size":1234,"inode":18446744073709551615}})";

class WorkspaceRecord : public testing::Test {
protected:
    static std::optional<StoredWorkspace> read(const Json& json) {
        return decodedWorkspace(jsonText(json));
    }
    /// The record with one member changed.
    Json with(const char* key, const Json& value) const {
        auto changed = record;
        changed[key] = value;
        return changed;
    }
    const Json record = parsedJson(kWorkspace).value();
};

TEST_F(WorkspaceRecord, ComesBackToTheByte) {
    const auto workspace = decodedWorkspace(kWorkspace);
    ASSERT_TRUE(workspace);
    EXPECT_EQ(encodedWorkspace(*workspace), kWorkspace);
    EXPECT_EQ(workspace->first.r, 1.2345678901234567);
    EXPECT_EQ(workspace->mode, HarmonyMode::splitComplementary);
    EXPECT_EQ(workspace->modeSizes.at(HarmonyMode::ramp), (StoredSize{300, 200}));
}

TEST_F(WorkspaceRecord, OfAnEarlierVersionStands) {
    const auto old =
        decodedWorkspace(R"({"first":{"r":1,"g":0,"b":0},"last":{"r":0,"g":0,"b":1,"a":1},)"
                         R"("customPalette":[{"r":0,"g":1,"b":0,"a":1}],"ofLater":[]})");
    StoredWorkspace expected;
    expected.first = {1, 0, 0, 1};
    expected.last = {0, 0, 1, 1};
    expected.customPalette = {{0, 1, 0, 1}};
    expected.customPaletteNames = {""};
    EXPECT_EQ(old, expected);
}

TEST_F(WorkspaceRecord, ReadsNamesAsAListOrAMap) {
    const auto names = [&](const Json& json) {
        return read(with("customPaletteNames", json)).value().customPaletteNames;
    };
    EXPECT_THAT(names({"A"}), ElementsAre("A", ""));
    EXPECT_THAT(names({7, "B", "C"}), ElementsAre("", "B"));
    EXPECT_THAT(names({{"1", "B"}, {"2", "C"}, {"x", "D"}, {"-1", "E"}}), ElementsAre("", "B"));
    EXPECT_THAT(names({{"00000000-0000-4000-8000-00000000000b", "B"},
                       {"00000000-0000-4000-8000-00000000000C", "C"},
                       {"0", nullptr}}),
                ElementsAre("", "B"));
    EXPECT_THAT(names("A"), ElementsAre("", ""));
}

TEST_F(WorkspaceRecord, IsBroughtIntoRange) {
    EXPECT_EQ(read(with("stepCount", -3))->stepCount, 1);
    EXPECT_EQ(read(with("stepCount", 1'000'000))->stepCount, 64);
    EXPECT_EQ(read(with("shadesPerAnchor", 0))->shadesPerAnchor, 1);
    EXPECT_EQ(read(with("shadesPerAnchor", "many"))->shadesPerAnchor, 1);
    EXPECT_EQ(read(with("selectedSwatch", 2))->selectedSwatch, std::nullopt);
    EXPECT_EQ(read(with("mode", "pentadic"))->mode, HarmonyMode::paletteBuilder);
    EXPECT_EQ(read(with("frame", {{"x", 1}}))->frame, std::nullopt);
    const auto& ids = record.at("swatchIDs");
    EXPECT_TRUE(read(record)->swatchIDs);
    for (const Json& damaged : {Json{ids[0]}, Json{ids[0], 7}, Json{7, ids[0], ids[1]}})
        EXPECT_FALSE(read(with("swatchIDs", damaged))->swatchIDs) << damaged;
    auto full = record;
    for (const auto* key : {"customPalette", "customPaletteNames", "swatchIDs"})
        full[key] = Json(300, record.at(key)[0]);
    const auto workspace = read(full).value();
    EXPECT_EQ(workspace.customPalette.size(), 256U);
    EXPECT_EQ(workspace.customPaletteNames.size(), 256U);
    EXPECT_EQ(workspace.swatchIDs->size(), 256U);
}

TEST_F(WorkspaceRecord, WithADamagedColourIsNone) {
    auto palette = record.at("customPalette");
    palette[0].erase("g");
    for (const Json& damaged : {with("first", "red"), with("customPalette", palette),
                                with("customPalette", {{"0", palette[1]}}), Json::array()})
        EXPECT_FALSE(read(damaged)) << damaged;
    EXPECT_FALSE(decodedWorkspace(kWorkspace.substr(0, kWorkspace.size() - 1)));
}

TEST_F(WorkspaceRecord, InAListStandsForItself) {
    const auto first = *decodedWorkspace(kWorkspace);
    auto second = first;
    second.mode = HarmonyMode::triadic;
    EXPECT_THAT(decodedWorkspaces(encodedWorkspaces({first, second})).value(),
                ElementsAre(first, second));
    EXPECT_THAT(decodedWorkspaces(jsonText({record, with("last", 1), 7})).value(),
                ElementsAre(first));
    EXPECT_EQ(decodedWorkspaces("[]")->size(), 0U);
    EXPECT_FALSE(decodedWorkspaces(kWorkspace));
}

} // namespace
} // namespace tintra
