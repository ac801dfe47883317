#include "tests/ui/Desk.h"
#include "ui/settings/FormatList.h"
#include "ui/settings/SettingsWindow.h"
#include "ui/shared/Controls.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>

namespace tintra::test {
namespace {

class SettingsTest : public testing::Test {
protected:
    struct DeskWithPhotoshop : Desk {
        DeskWithPhotoshop() { desktop.scripting.installed = {"com.adobe.Photoshop"}; }
    };

    void show(SettingsTab tab) {
        preferences.settingsTab = tab;
        open(window);
    }
    /// The keyboard goes to the visible control of that accessible name, which is answered.
    QWidget* focus(const char* name) const {
        for (auto* one : window.findChildren<QWidget*>()) {
            const bool takes = one->isVisible() && one->focusPolicy() != Qt::NoFocus;
            const auto* said = takes ? QAccessible::queryAccessibleInterface(one) : nullptr;
            if (!said || said->text(QAccessible::Name) != QString::fromUtf8(name)) continue;
            one->setFocus(Qt::TabFocusReason);
            return one;
        }
        return nullptr;
    }
    /// Chooses of the menu that is open.
    static void choose(const char* text) {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr) << text;
        for (auto* action : menu->actions())
            if (action->text() == QString::fromUtf8(text)) menu->setActiveAction(action);
        QTest::keyClick(menu, Qt::Key_Return);
    }
    /// What a screen reader is told of how a control stands.
    static QString standing(QWidget& of) {
        auto* said = QAccessible::queryAccessibleInterface(&of);
        const auto value = said->valueInterface() ? said->valueInterface()->currentValue() : false;
        return said->text(QAccessible::Description) + value.toString() +
               QString::number(said->state().checked);
    }
    std::string& kept() { return desk.desktop.defaults.records["TintraPreferences"]; }

    DeskWithPhotoshop desk;
    Preferences& preferences = desk.models.preferences();
    SettingsWindow window{desk.ui};
};

TEST_F(SettingsTest, EveryControlChangesItsSettingAndFollowsIt) {
    using enum SettingsTab;
    struct {
        SettingsTab tab;
        const char *name, *done; ///< keys, or the choice of a pop-up
        const char* kept;        ///< what the settings' document then says
    } const rows[] = {
        {general, "Appearance", "Right", R"("appearance":"dark")"},
        {general, "Type size", "Right", R"("typeSize":"larger")"},
        {general, "Opens with", "A clean window", R"("opensWith":"clean")"},
        {general, "Behind translucent swatches", "Strips", R"("swatchBackdrop":"strips")"},
        {general, "Always on top", "Space", R"("alwaysOnTop":true)"},
        {general, "Collapse to a strip when inactive", "Space", R"("collapseWhenInactive":true)"},
        {general, "Show the watermark", "Space", R"("showsWatermark":true)"},
        {general, "Collapsed strip", "End", R"("compactOrientation":"vertical")"},
        {general, "Adobe Photoshop", "Space", R"("enabledIntegrations":["photoshop"])"},
        {library, "Include system palettes", "Space", R"("includeSystemPalettes":true)"},
        {library, "Rescan on launch", "Space", R"("rescanOnLaunch":false)"},
        {library, "Search by colour", "Right", R"("libraryMatch":"hue")"},
        {colour, "RGB space", "Display P3", R"("rgbProfile":"Display P3")"},
        {colour, "Lab white point", "Right", R"("labIlluminant":"d65")"},
        {colour, "Colour editor", "Right", R"("editorPicker":"wheel")"},
        {colour, "Editor’s sliders", "CMYK", R"("editorSpace":"cmyk")"},
        {code, "Decimals", "Up", R"("decimals":4)"},
        {code, "Fractions of 255", "Space", R"("useFractions":true)"},
        {code, "Remove white space", "Space", R"("removeWhitespace":true)"},
        {code, "Upper-case CSS", "Space", R"("cssUppercase":true)"},
        {code, "# before a CSS hex code", "Space", R"("cssPrefixHash":false)"},
    };
    for (const auto& [tab, name, done, says] : rows) {
        SCOPED_TRACE(name);
        show(tab);
        auto* one = focus(name);
        ASSERT_NE(one, nullptr);
        const auto stood = standing(*one);
        const auto before = kept();
        const bool isPopUp = dynamic_cast<PopUpButton*>(one) != nullptr;
        press(isPopUp ? "Space" : done);
        if (isPopUp) choose(done);
        EXPECT_EQ(before.find(says), std::string::npos);
        EXPECT_NE(kept().find(says), std::string::npos) << kept();
        EXPECT_NE(standing(*one), stood);
        kept() = before;
        preferences.restore();
        EXPECT_EQ(standing(*one), stood);
    }
    show(general);
    EXPECT_EQ(focus("Adobe Illustrator"), nullptr) << "it is not installed";
}

TEST_F(SettingsTest, TabsTurnByKeyboardAndScreenReader) {
    show(SettingsTab::general);
    ASSERT_TRUE(doDefault(accessible(window, "Code")));
    EXPECT_TRUE(accessible(window, "Code")->state().checked);
    press("Ctrl+PgDown");
    EXPECT_EQ(preferences.settingsTab.value(), SettingsTab::shortcuts);
    focus("Keyboard Shortcuts…");
    press("Space");
    EXPECT_EQ(desk.windows.taken(), std::vector<std::string>{"shortcuts"});
    press("Ctrl+PgDown");
    EXPECT_EQ(preferences.settingsTab.value(), SettingsTab::general);
    EXPECT_TRUE(QApplication::focusWidget()->isVisible());
    for (const bool resets : {false, true}) {
        preferences.alwaysOnTop = true;
        preferences.opensWith = OpeningState::clean;
        desk.desktop.dialogues.buttons = {resets ? "Reset" : "Cancel"};
        focus("Reset to Defaults…");
        press("Space");
        EXPECT_EQ(preferences.alwaysOnTop.value(), !resets);
        EXPECT_EQ(preferences.opensWith.value(), OpeningState::clean) << "that stays";
    }
    preferences.shortcutsTabRequested = true;
    EXPECT_EQ(preferences.settingsTab.value(), SettingsTab::shortcuts);
    press("Escape");
    EXPECT_FALSE(window.isVisible());
}

TEST_F(SettingsTest, TheBackdropTakesAnyCodeAndRefusesTheRest) {
    show(SettingsTab::colour);
    auto& field = dynamic_cast<QLineEdit&>(*focus("Backdrop colour"));
    const auto type = [&](const char* text) {
        field.selectAll();
        QTest::keyClicks(&field, QString::fromLatin1(text));
        press("Return");
        return preferences.backdropColour.value().hex() + ' ' + field.text().toStdString();
    };
    EXPECT_EQ(type("rgb(255, 128, 0)"), "#FF8000 #ff8000");
    EXPECT_EQ(type("no colour"), "#FF8000 no colour");
    EXPECT_FALSE(field.accessibleDescription().isEmpty());
    press("Escape");
    EXPECT_EQ(field.text(), QStringLiteral("#ff8000"));
    EXPECT_TRUE(window.isVisible()) << "Escape only brought the code back";
    EXPECT_EQ(type("#11223380"), "#112233 #112233");
}

TEST_F(SettingsTest, FoldersAreWatchedNamedTaggedAndLetGoOf) {
    show(SettingsTab::library);
    auto& dialogues = desk.desktop.dialogues;
    const auto at = [&](std::size_t i) { return preferences.paletteLocations.value().at(i); };
    const auto act = [&](const char* control, const char* choice = nullptr) {
        auto* one = focus(control);
        press(choice ? "Return" : "Space");
        if (choice) choose(choice);
        desk.settle();
        return one;
    };
    for (const auto* name : {"Studio", "Archive", "Studio"}) {
        std::filesystem::create_directories(desk.folder / name);
        dialogues.paths = {desk.folder / name};
        act("Add a Folder…");
    }
    EXPECT_EQ(desk.notices(), std::vector<std::string>{"That folder is already being watched"});
    auto* list = act("Folders");
    EXPECT_FALSE(at(0).isEnabled);
    EXPECT_FALSE(QAccessible::queryAccessibleInterface(list)->child(0)->state().checked);
    dialogues.names = {"Client Work", "2026"};
    for (const auto* choice : {"Rename…", "Tag…", "Include Stylesheets", "Reveal"})
        act("Folders", choice);
    EXPECT_TRUE(at(0).includesStylesheets);
    EXPECT_EQ(desk.desktop.fileBrowser.revealed.back(), desk.folder / "Studio");
    std::filesystem::remove(desk.folder / "Archive");
    act("Rescan Palette Folders");
    const auto path = [&](const char* name) { return "; " + (desk.folder / name).string() + "; "; };
    EXPECT_EQ(children(*list).at(0), "Client Work" + path("Studio") + "2026");
    EXPECT_EQ(children(*list).at(2), "Archive" + path("Archive") + "OFFLINE");
    dialogues.paths = {desk.folder.path()};
    for (const auto* choice : {"Choose Again…", "Remove Tag"})
        act("Folders", choice);
    EXPECT_EQ(at(0).path, desk.folder.path());
    EXPECT_FALSE(at(0).tag.has_value());
    act("Folders", "Stop Watching");
    EXPECT_EQ(at(0).nickname, "Archive");
    click(*list, {list->width() - 20.0, 20});
    choose("Stop Watching");
    EXPECT_FALSE(list->isVisible()) << "a sentence stands in its place";
}

TEST_F(SettingsTest, StarsAndTheCurrentFormatAreChosenByKeyAndPointer) {
    show(SettingsTab::code);
    const auto reads = [&](const char* sample) { return accessible(window, sample) != nullptr; };
    auto& list = dynamic_cast<FormatList&>(*focus("Formats of code"));
    const auto& favourites = preferences.formatFavourites;
    press("Space");
    EXPECT_NE(favourites.value().front(), ColorFormat(ColorFormat::cssHex));
    press("Space");
    EXPECT_EQ(favourites.value().back(), ColorFormat(ColorFormat::cssHex)) << "it comes last";
    EXPECT_TRUE(reads("#e4572e") && reads("rgb(228, 87, 46)"));
    preferences.formatOptions = {.removeWhitespace = true, .cssUppercase = true};
    EXPECT_TRUE(reads("#E4572E") && reads("RGB(228,87,46)"));
    press("End");
    press("Return");
    EXPECT_EQ(preferences.format.value(), ColorFormat(ColorFormat::cgColorCMYK));
    EXPECT_FALSE(reads("RGB(228,87,46)")) << "the current format stands in its place";
    press("Home");
    const auto hit = [&](int kind, ColorFormat::Case of) {
        click(list, list.items().at(static_cast<std::size_t>(list.find(kind, of))).rect.center());
    };
    hit(FormatList::star, ColorFormat::cssVar);
    EXPECT_EQ(favourites.value().back(), ColorFormat(ColorFormat::cssVar));
    hit(FormatList::format, ColorFormat::cssRGB);
    EXPECT_EQ(preferences.format.value(), ColorFormat(ColorFormat::cssRGB));
}

TEST_F(SettingsTest, NothingIsCutOffAtAnySizeOfType) {
    const PaletteLocation longest{.id = {},
                                  .nickname = std::string(10000, 'n') + "🎨 אבג",
                                  .path = "/" + std::string(200, 'p'),
                                  .tag = std::string(10000, 't'),
                                  .bookmark = {}};
    preferences.paletteLocations = std::vector{longest};
    desk.settle();
    for (const auto size : allChoices<TypeSize>())
        for (const auto tab : allChoices<SettingsTab>()) {
            preferences.typeSize = size;
            preferences.appearance =
                size == TypeSize::larger ? Appearance::dark : Appearance::light;
            desk.settings.prefersHighContrast = size == TypeSize::largest;
            desk.applyStyle();
            show(tab);
            grab(window, "settings-" + std::string(rawValue(tab)) + std::string(rawValue(size)));
            for (auto* one : window.findChildren<QWidget*>()) {
                const bool speaks = dynamic_cast<QLabel*>(one) || dynamic_cast<Segmented*>(one) ||
                                    dynamic_cast<QAbstractButton*>(one);
                if (!speaks || !one->isVisible()) continue;
                SCOPED_TRACE(toUtf8(one->accessibleName() + one->property("text").toString()));
                const auto width = one->width(), needed = one->heightForWidth(width);
                EXPECT_GE(width, one->minimumSizeHint().width());
                EXPECT_GE(one->height(), needed < 0 ? one->sizeHint().height() : needed);
                EXPECT_LE(one->mapTo(&window, QPoint(width, 0)).x(), window.width());
            }
        }
}

} // namespace
} // namespace tintra::test
