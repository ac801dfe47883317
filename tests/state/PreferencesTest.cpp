#include "state/Preferences.h"

#include "state/Codec.h"
#include "tests/support/FakeDesktop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace tintra {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

// What a new user's document says.
constexpr std::string_view kDefaults =
    R"({"format":"cssHex","formatFavourites":["cssHex","cssRGB","cssRGBA","cssHSL","cssHSLA",)"
    R"("cssOKLCH","swiftUIColor","swiftUIRGB","swiftNSSRGB"],"formatOptions":{"decimals":3,)"
    R"("useFractions":false,"removeWhitespace":false,"cssUppercase":false,"cssPrefixHash":true},)"
    R"("recents":[],"appearance":"system","typeSize":"regular","swatchBackdrop":"checkerboard",)"
    R"("backdropColour":{"r":0.8705882352941177,"g":0.8705882352941177,"b":0.8705882352941177,)"
    R"("a":1.0},"editorPicker":"plane","editorSpace":"oklch","alwaysOnTop":false,)"
    R"("collapseWhenInactive":false,"showsWatermark":false,"settingsTab":"general",)"
    R"("cmykProfile":"Device CMYK","rgbProfile":"sRGB IEC61966-2.1","labIlluminant":"d50",)"
    R"("enabledIntegrations":[],"hotKeyEnabled":true,"hotKeyCombo":"optionCommandP",)"
    R"("paletteLocations":[],"includeSystemPalettes":false,"rescanOnLaunch":true,)"
    R"("paletteViews":{},"libraryExpanded":[],"libraryCollapsed":[],"libraryTiles":false,)"
    R"("libraryMatch":"close","librarySortByName":true,"librarySortAscending":true,)"
    R"("librarySortByDate":false,"pictureShare":"half","opensWith":"resume","lastExport":"ase",)"
    R"("hangSide":"right","compactOrientation":"horizontal"})";

// Every setting away from its default, and one of a later version.
constexpr std::string_view kEverything =
    R"({"format":"androidXML","formatFavourites":["cssVar"],"formatOptions":{"decimals":5,)"
    R"("useFractions":true,"removeWhitespace":true,"cssUppercase":true,"cssPrefixHash":false},)"
    R"("recents":[{"r":1.25,"g":-0.1,"b":0.5,"a":0.25}],"appearance":"dark","typeSize":"largest",)"
    R"("swatchBackdrop":"strips","backdropColour":{"r":0.0,"g":0.25,"b":0.5,"a":1.0},)"
    R"("editorPicker":"wheel","editorSpace":"cmyk","alwaysOnTop":true,)"
    R"("collapseWhenInactive":true,"showsWatermark":true,"settingsTab":"shortcuts",)"
    R"("cmykProfile":"Coated","rgbProfile":"Display P3","labIlluminant":"d65",)"
    R"("enabledIntegrations":["illustrator","photoshop"],"hotKeyEnabled":false,)"
    R"("hotKeyCombo":"controlOptionCommandC","paletteLocations":[)"
    R"({"id":"6F9619FF-8B86-D011-B42D-00C04FC964FF","nickname":"Arbeit 🎨","path":"/p/Ä",)"
    R"("tag":"A","isEnabled":false,"includesStylesheets":true,"bookmark":"AP+A"},)"
    R"({"id":"6F9619FF-8B86-D011-B42D-00C04FC964FE","nickname":"","path":"/q",)"
    R"("isEnabled":true,"includesStylesheets":false}],"includeSystemPalettes":true,)"
    R"("rescanOnLaunch":false,"paletteViews":{"/p/a.ase":"tiles","/p/b.ase":"columns"},)"
    R"("libraryExpanded":["a","b"],"libraryCollapsed":["c"],"libraryTiles":true,)"
    R"("libraryMatch":"hue","librarySortByName":false,"librarySortAscending":false,)"
    R"("librarySortByDate":true,"pictureShare":"twoThirds","opensWith":"clean",)"
    R"("lastExport":"markdown","hangSide":"left","compactOrientation":"vertical",)"
    R"("colorsFolderBookmark":"/+8=","ofLater":{"deep":[1,null,"x"]}})";

class PreferencesTest : public testing::Test {
protected:
    static constexpr const char* kKey = "TintraPreferences";

    /// The settings of a next run that finds this document.
    Preferences& restored(std::string document) {
        desktop.defaults.records[kKey] = std::move(document);
        desktop.defaults.writes.clear();
        run = std::make_unique<Preferences>(desktop.services);
        run->restore();
        return *run;
    }
    int writes() { return desktop.defaults.writes[kKey]; }
    Json written() { return parsedJson(desktop.defaults.records.at(kKey)).value(); }
    /// What a run makes of a document.
    Json rewritten(const Json& document) {
        restored(jsonText(document)).persist();
        return written();
    }

    FakeDesktop desktop{{}};
    std::unique_ptr<Preferences> run;
    const Json defaults = parsedJson(kDefaults).value();
    const Json everything = parsedJson(kEverything).value();
};

TEST_F(PreferencesTest, ANewUserHasTheDefaultsAndNothingIsWrittenYet) {
    Preferences preferences(desktop.services);
    preferences.restore();
    EXPECT_TRUE(desktop.defaults.records.empty() && desktop.log.lines.empty());
    preferences.persist();
    EXPECT_EQ(written(), defaults);
}

TEST_F(PreferencesTest, EverySettingComesBackAndALaterVersionsGoesOn) {
    for (const auto& [key, value] : defaults.items())
        EXPECT_NE(everything.at(key), value) << key << " proves nothing at its default";
    EXPECT_EQ(rewritten(everything), everything);
}

TEST_F(PreferencesTest, AnEarlierVersionsDocumentIsFilledUpWithDefaults) {
    const Json early = {{"format", "cssRGB"},
                        {"formatFavourites", {"cssVar"}},
                        {"formatOptions", {{"decimals", 1}}}};
    auto expected = defaults;
    expected.merge_patch(early);
    EXPECT_EQ(rewritten(early), expected);
}

TEST_F(PreferencesTest, ADamagedMemberCostsItselfAlone) {
    const Json unknownCase = "of another version", anotherShape = {{"unlike", 7}};
    for (const auto& junk : {unknownCase, anotherShape})
        for (const auto& [key, value] : everything.items()) {
            const bool isText = key == "cmykProfile" || key == "rgbProfile";
            if (key == "ofLater" || (isText && junk.is_string())) continue;
            auto damaged = everything, expected = everything;
            damaged[key] = junk;
            if (defaults.contains(key))
                expected[key] = defaults.at(key);
            else
                expected.erase(key);
            EXPECT_EQ(rewritten(damaged), expected) << key << ": " << junk;
        }
}

TEST_F(PreferencesTest, ADamagedElementCostsItselfAlone) {
    auto damaged = everything;
    damaged["formatFavourites"] = {"cssVar", "cssLater", 7};
    damaged["paletteLocations"].push_back({{"id", "nobody"}, {"path", "/r"}});
    damaged["paletteLocations"].push_back({{"id", "6F9619FF-8B86-D011-B42D-00C04FC964FD"}});
    damaged["paletteViews"]["/p/c.ase"] = "spiral";
    damaged["libraryCollapsed"] = {nullptr, "c"};
    EXPECT_EQ(rewritten(damaged), everything);
}

TEST_F(PreferencesTest, WhatIsNoDocumentIsSetAside) {
    const auto deep = R"({"x":)" + std::string(200'000, '[') + std::string(200'000, ']') + "}";
    for (const auto& text : {std::string(), std::string("{"), std::string("[]"), std::string("7"),
                             std::string("{\"format\":\"\xff\"}"), deep}) {
        desktop.log.lines.clear();
        desktop.defaults.asideKeys.clear();
        auto& preferences = restored(text);
        EXPECT_THAT(desktop.log.lines,
                    ElementsAre(StartsWith("Tintra: could not decode the saved preferences: ")));
        EXPECT_THAT(desktop.defaults.asideKeys, ElementsAre(kKey));
        preferences.persist();
        EXPECT_EQ(written(), defaults) << text.substr(0, 20);
    }
}

TEST_F(PreferencesTest, EachChangeIsWrittenOnceAndAtOnce) {
    auto& preferences = restored(std::string(kEverything));
    EXPECT_EQ(writes(), 0) << "restoring writes nothing";
    preferences.hangSide = HangSide::right;
    EXPECT_EQ(writes(), 1);
    EXPECT_EQ(written().at("hangSide"), "right");
    preferences.hangSide = HangSide::right;
    EXPECT_EQ(writes(), 1) << "the same value is no change";
    preferences.colorsFolderBookmark = std::nullopt;
    EXPECT_FALSE(written().contains("colorsFolderBookmark"));
    preferences.hotKeyUnavailable = true;
    EXPECT_EQ(writes(), 2) << "what a run finds out is not kept";
}

TEST_F(PreferencesTest, AResetSetsItsSettingsInOrderAndLeavesTheOthers) {
    auto& preferences = restored(std::string(kEverything));
    std::vector<std::string> changes;
    std::vector<QPropertyNotifier> notifiers;
    const auto watch = [&](const char* key, auto& property) {
        notifiers.emplace_back(property, [&changes, key] { changes.emplace_back(key); });
    };
    watch("format", preferences.format);
    watch("formatFavourites", preferences.formatFavourites);
    watch("formatOptions", preferences.formatOptions);
    watch("alwaysOnTop", preferences.alwaysOnTop);
    watch("collapseWhenInactive", preferences.collapseWhenInactive);
    watch("showsWatermark", preferences.showsWatermark);
    watch("cmykProfile", preferences.cmykProfile);
    watch("rgbProfile", preferences.rgbProfile);
    watch("labIlluminant", preferences.labIlluminant);
    watch("enabledIntegrations", preferences.enabledIntegrations);
    watch("hotKeyEnabled", preferences.hotKeyEnabled);
    watch("hotKeyCombo", preferences.hotKeyCombo);
    preferences.resetToDefaults();
    EXPECT_THAT(changes, ElementsAre("formatOptions", "alwaysOnTop", "collapseWhenInactive",
                                     "showsWatermark", "cmykProfile", "rgbProfile", "labIlluminant",
                                     "hotKeyEnabled", "hotKeyCombo", "enabledIntegrations",
                                     "format", "formatFavourites"));
    EXPECT_EQ(writes(), 12);
    auto expected = everything;
    for (const auto& key : changes)
        expected[key] = defaults.at(key);
    EXPECT_EQ(written(), expected);
}

TEST_F(PreferencesTest, RecentColoursAreBoundedAndNoTwoTheSame) {
    auto document = everything;
    document["recents"] = {{{"r", 0}, {"g", 0}, {"b", 0}}, {{"r", 0.001}, {"g", 0}, {"b", 0}}};
    auto& preferences = restored(jsonText(document));
    const auto recents = [&] { return preferences.recents.value(); };
    const WashColor oldest{0, 0, 0, 1};
    EXPECT_THAT(recents(), ElementsAre(oldest)) << "they differ below eight bits only";
    for (int i = 0; i < 23; ++i)
        preferences.remember({1, i / 255.0, 0, 1});
    EXPECT_EQ(recents().back(), oldest);
    preferences.remember(oldest);
    EXPECT_EQ(recents().front(), oldest);
    EXPECT_EQ(recents().back(), (WashColor{1, 0, 0, 1}));
    preferences.remember({0, 0, 1, 1});
    EXPECT_EQ(recents().size(), 24U);
    EXPECT_EQ(recents().back(), (WashColor{1, 1 / 255.0, 0, 1}));
}

TEST_F(PreferencesTest, RememberedDisplaysOfClosedWindowsGoFirst) {
    auto document = everything;
    for (int i = 0; i < 999; ++i)
        document["paletteViews"]["/many/" + std::to_string(i)] = "tiles";
    document["paletteViews"]["00000000-0000-4000-8000-000000000001"] = "tiles";
    const auto views = restored(jsonText(document)).paletteViews.value();
    EXPECT_EQ(views.size(), 1000U);
    EXPECT_TRUE(std::all_of(views.begin(), views.end(),
                            [](const auto& view) { return view.first.starts_with('/'); }));
}

TEST_F(PreferencesTest, TheProfilesFollowTheSettings) {
    auto& preferences = restored(std::string(kEverything));
    ColorProfiles profiles([] { return std::vector<std::filesystem::path>(); });
    preferences.follow(profiles);
    EXPECT_EQ(profiles.selectedRGB(), "Display P3");
    EXPECT_EQ(profiles.labIlluminant(), LabIlluminant::d65);
    preferences.rgbProfile = std::string("no such space");
    EXPECT_EQ(profiles.selectedRGB(), ColorProfiles::kDefaultRgb);
    preferences.resetToDefaults();
    EXPECT_EQ(profiles.labIlluminant(), LabIlluminant::d50);
}

} // namespace
} // namespace tintra
