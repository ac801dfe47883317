#include "state/Preferences.h"

#include "state/Codec.h"
#include "tests/support/FakeDesktop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tintra {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct PreferencesTest : testing::Test {
    static constexpr auto kKey = "TintraPreferences";

    FakeDesktop desktop{"unused"};

    int writes() { return desktop.defaults.writes[kKey]; }
    Json document() { return *parsedJson(desktop.defaults.records.at(kKey)); }
    /// Settings as a start finds them over a document.
    std::unique_ptr<Preferences> restored(std::string text) {
        desktop.defaults.records[kKey] = std::move(text);
        auto preferences = std::make_unique<Preferences>(desktop.services);
        preferences->restore();
        return preferences;
    }
};

TEST_F(PreferencesTest, StartWithTheDefaults) {
    const Preferences preferences(desktop.services);
    EXPECT_EQ(preferences.format.value(), ColorFormat::cssHex);
    EXPECT_EQ(preferences.appearance, Appearance::system);
    EXPECT_EQ(preferences.swatchBackdrop, SwatchBackdrop::checkerboard);
    EXPECT_EQ(preferences.backdropColour.value().identity(), "DEDEDEFF");
    EXPECT_EQ(preferences.editorSpace, EditorSpace::oklch);
    EXPECT_EQ(preferences.cmykProfile.value(), "Device CMYK");
    EXPECT_EQ(preferences.rgbProfile.value(), "sRGB IEC61966-2.1");
    EXPECT_EQ(preferences.libraryMatch, ColourMatch::close);
    EXPECT_EQ(preferences.lastExport, ExportFormat::ase);
    EXPECT_TRUE(preferences.hotKeyEnabled && preferences.rescanOnLaunch);
    EXPECT_FALSE(preferences.includeSystemPalettes || preferences.libraryTiles);
    EXPECT_EQ(writes(), 0);
}

TEST_F(PreferencesTest, EachChangeWritesTheWholeDocumentOnce) {
    Preferences preferences(desktop.services);
    preferences.typeSize = TypeSize::largest;
    EXPECT_EQ(writes(), 1);
    preferences.typeSize = TypeSize::largest;
    EXPECT_EQ(writes(), 1) << "nothing has changed";
    preferences.paletteViews =
        std::map<std::string, PaletteDisplay>{{"/p/Sea.ase", PaletteDisplay::tiles}};
    preferences.enabledIntegrations = std::set<std::string>{"photoshop"};
    EXPECT_EQ(writes(), 3);
    EXPECT_EQ(document().size(), 36U) << "every key but the bookmark that there is not";

    const auto again = restored(desktop.defaults.records[kKey]);
    EXPECT_EQ(writes(), 3) << "restoring writes nothing";
    EXPECT_EQ(again->typeSize, TypeSize::largest);
    EXPECT_EQ(again->paletteViews.value().at("/p/Sea.ase"), PaletteDisplay::tiles);
    EXPECT_TRUE(again->enabledIntegrations.value().contains("photoshop"));
}

TEST_F(PreferencesTest, OtherVersionsDocumentsLoadAndKeepWhatIsTheirs) {
    const auto preferences = restored(
        R"({"format":"cssRGB","appearance":"sepia","hotKeyEnabled":"yes","libraryTiles":true,)"
        R"("formatFavourites":["cssHex","of a later version","cssHSL"],"ofALaterVersion":[1]})");
    EXPECT_EQ(preferences->format.value(), ColorFormat::cssRGB);
    EXPECT_EQ(preferences->appearance, Appearance::system);
    EXPECT_TRUE(preferences->hotKeyEnabled && preferences->libraryTiles);
    EXPECT_THAT(preferences->formatFavourites.value(),
                ElementsAre(ColorFormat::cssHex, ColorFormat::cssHSL));
    preferences->alwaysOnTop = true;
    EXPECT_EQ(document().at("ofALaterVersion"), Json::array({1}));
    EXPECT_THAT(desktop.log.lines, IsEmpty());
}

TEST_F(PreferencesTest, ADamagedDocumentIsSetAside) {
    for (const auto* damaged : {"", "{\"format\":", "[]", "\xFF\xFE"}) {
        desktop.log.lines.clear();
        desktop.defaults.asideKeys.clear();
        const auto preferences = restored(damaged);
        EXPECT_EQ(preferences->format.value(), ColorFormat::cssHex);
        EXPECT_EQ(desktop.log.lines.size(), 1U) << damaged;
        EXPECT_THAT(desktop.defaults.asideKeys, ElementsAre(kKey));
    }
}

TEST_F(PreferencesTest, ResettingLeavesAppearanceAndLibraryAlone) {
    Preferences preferences(desktop.services);
    preferences.appearance = Appearance::dark;
    preferences.libraryTiles = true;
    preferences.alwaysOnTop = true;
    preferences.formatOptions = FormatOptions{.decimals = 5};
    preferences.labIlluminant = LabIlluminant::d65;
    preferences.hotKeyCombo = HotKeyCombo::optionCommandK;
    preferences.format = ColorFormat(ColorFormat::javaRGB);
    preferences.formatFavourites = std::vector<ColorFormat>{};
    preferences.resetToDefaults();
    EXPECT_EQ(preferences.appearance, Appearance::dark);
    EXPECT_TRUE(preferences.libraryTiles);
    EXPECT_FALSE(preferences.alwaysOnTop);
    EXPECT_EQ(preferences.formatOptions.value(), FormatOptions());
    EXPECT_EQ(preferences.labIlluminant, LabIlluminant::d50);
    EXPECT_EQ(preferences.hotKeyCombo, HotKeyCombo::optionCommandP);
    EXPECT_EQ(preferences.format.value(), ColorFormat::cssHex);
    EXPECT_FALSE(preferences.formatFavourites.value().empty());
}

TEST_F(PreferencesTest, RecentColoursAreNewestFirstWithoutRepeats) {
    Preferences preferences(desktop.services);
    for (int i = 0; i < 30; ++i)
        preferences.remember({i / 255.0, 0, 0, 1});
    preferences.remember({20.2 / 255, 0, 0, 1});
    const auto& recents = preferences.recents.value();
    ASSERT_EQ(recents.size(), Preferences::kRecents);
    EXPECT_EQ(recents[0].identity(), "140000FF");
    EXPECT_EQ(recents[1].identity(), "1D0000FF");
    EXPECT_EQ(recents.back().identity(), "060000FF");
}

TEST_F(PreferencesTest, ProfilesFollowTheirSettings) {
    ColorProfiles profiles{[] { return std::vector<std::filesystem::path>{}; }};
    Preferences preferences(desktop.services);
    preferences.rgbProfile = std::string("Display P3");
    preferences.follow(profiles);
    EXPECT_EQ(profiles.selectedRGB(), "Display P3");
    preferences.labIlluminant = LabIlluminant::d65;
    EXPECT_EQ(profiles.labIlluminant(), LabIlluminant::d65);
    preferences.rgbProfile = std::string("no such space");
    EXPECT_EQ(profiles.selectedRGB(), ColorProfiles::kDefaultRgb);
}

} // namespace
} // namespace tintra
