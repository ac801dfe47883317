#include "tests/ui/Desk.h"
#include "ui/settings/FormatList.h"
#include "ui/settings/LocationsList.h"
#include "ui/settings/SettingsWindow.h"
#include "ui/shared/Controls.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <algorithm>

namespace tintra::test {
namespace {

class SettingsTest : public testing::Test {
protected:
    SettingsTest() { desk.desktop.scripting.installed = {"com.adobe.Photoshop"}; }

    SettingsWindow& window(SettingsTab tab) {
        preferences.settingsTab = tab;
        if (!made) made = std::make_unique<SettingsWindow>(desk.ui);
        open(*made);
        return *made;
    }
    /// The keyboard goes to the visible control of that accessible name, which is answered.
    QWidget* focus(const char* name) const {
        for (auto* one : made->findChildren<QWidget*>()) {
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
        const auto* value = said->valueInterface();
        return said->text(QAccessible::Description) +
               (value ? value->currentValue().toString() : QString()) +
               QString::number(said->state().checked);
    }

    Desk desk;
    Preferences& preferences = desk.models.preferences();
    std::unique_ptr<SettingsWindow> made;
};

/// A control, what is done to it (keys, or the choice of a pop-up), and what then holds.
struct Row {
    SettingsTab tab;
    const char *name, *done;
    std::function<bool(Preferences&)> holds;
    std::function<void(Preferences&)> setBack;
};

template <class T>
Row row(SettingsTab tab, const char* name, const char* done, QProperty<T> Preferences::*setting,
        const T& before, const T& after) {
    return {tab, name, done, [=](Preferences& of) { return (of.*setting).value() == after; },
            [=](Preferences& of) { of.*setting = before; }};
}

TEST_F(SettingsTest, EveryControlChangesItsSettingAndFollowsIt) {
    using P = Preferences;
    using Texts = std::set<std::string>;
    using enum SettingsTab;
    const auto text = [](const char* of) { return std::string(of); };
    // clang-format off
    const std::vector<Row> rows{
        row(general, "Appearance", "Right", &P::appearance, Appearance::light, Appearance::dark),
        row(general, "Type size", "Right", &P::typeSize, TypeSize::regular, TypeSize::larger),
        row(general, "Opens with", "A clean window", &P::opensWith, OpeningState::resume, OpeningState::clean),
        row(general, "Behind translucent swatches", "Strips", &P::swatchBackdrop, SwatchBackdrop::checkerboard, SwatchBackdrop::strips),
        row(general, "Always on top", "Space", &P::alwaysOnTop, false, true),
        row(general, "Collapse to a strip when inactive", "Space", &P::collapseWhenInactive, false, true),
        row(general, "Show the watermark", "Space", &P::showsWatermark, false, true),
        row(general, "Collapsed strip", "End", &P::compactOrientation, CompactOrientation::horizontal, CompactOrientation::vertical),
        row(general, "Adobe Photoshop", "Space", &P::enabledIntegrations, Texts{}, Texts{"photoshop"}),
        row(library, "Include system palettes", "Space", &P::includeSystemPalettes, false, true),
        row(library, "Rescan on launch", "Space", &P::rescanOnLaunch, true, false),
        row(library, "Search by colour", "Right", &P::libraryMatch, ColourMatch::close, ColourMatch::hue),
        row(colour, "RGB space", "Display P3", &P::rgbProfile, text("sRGB IEC61966-2.1"), text("Display P3")),
        row(colour, "Lab white point", "Right", &P::labIlluminant, LabIlluminant::d50, LabIlluminant::d65),
        row(colour, "Colour editor", "Right", &P::editorPicker, PickerStyle::plane, PickerStyle::wheel),
        row(colour, "Editor’s sliders", "CMYK", &P::editorSpace, EditorSpace::oklch, EditorSpace::cmyk),
        row(code, "Decimals", "Up", &P::formatOptions, {}, FormatOptions{.decimals = 4}),
        row(code, "Fractions of 255", "Space", &P::formatOptions, {}, FormatOptions{.useFractions = true}),
        row(code, "Remove white space", "Space", &P::formatOptions, {}, FormatOptions{.removeWhitespace = true}),
        row(code, "Upper-case CSS", "Space", &P::formatOptions, {}, FormatOptions{.cssUppercase = true}),
        row(code, "# before a CSS hex code", "Space", &P::formatOptions, {}, FormatOptions{.cssPrefixHash = false}),
    };
    // clang-format on
    for (const auto& [tab, name, done, holds, setBack] : rows) {
        SCOPED_TRACE(name);
        window(tab);
        auto* one = focus(name);
        ASSERT_NE(one, nullptr);
        setBack(preferences);
        const auto before = standing(*one);
        const bool isPopUp = dynamic_cast<PopUpButton*>(one) != nullptr;
        press(isPopUp ? "Space" : done);
        if (isPopUp) choose(done);
        EXPECT_TRUE(holds(preferences));
        EXPECT_NE(standing(*one), before);
        setBack(preferences);
        EXPECT_EQ(standing(*one), before);
    }
    window(general);
    EXPECT_EQ(focus("Adobe Illustrator"), nullptr) << "it is not installed";
}

TEST_F(SettingsTest, TabsTurnByKeyboardAndAreRemembered) {
    window(SettingsTab::general);
    ASSERT_TRUE(doDefault(accessible(*made, "Code")));
    EXPECT_EQ(preferences.settingsTab.value(), SettingsTab::code);
    EXPECT_TRUE(accessible(*made, "Code")->state().checked);
    preferences.settingsTab = SettingsTab::general;
    press("Ctrl+PgUp");
    EXPECT_EQ(preferences.settingsTab.value(), SettingsTab::shortcuts);
    focus("Keyboard Shortcuts…");
    press("Space");
    EXPECT_EQ(desk.windows.taken(), std::vector<std::string>{"shortcuts"});
    press("Ctrl+PgDown");
    press("Ctrl+PgDown");
    EXPECT_EQ(preferences.settingsTab.value(), SettingsTab::library);
    EXPECT_TRUE(QApplication::focusWidget() && QApplication::focusWidget()->isVisible());
    preferences.shortcutsTabRequested = true;
    EXPECT_EQ(preferences.settingsTab.value(), SettingsTab::shortcuts);
    press("Escape");
    EXPECT_FALSE(made->isVisible());
}

TEST_F(SettingsTest, ResettingAsksFirst) {
    window(SettingsTab::general);
    for (const bool resets : {false, true}) {
        preferences.alwaysOnTop = true;
        preferences.opensWith = OpeningState::clean;
        desk.desktop.dialogues.buttons = {resets ? "Reset" : "Cancel"};
        focus("Reset to Defaults…");
        press("Space");
        EXPECT_EQ(preferences.alwaysOnTop.value(), !resets);
        EXPECT_EQ(preferences.opensWith.value(), OpeningState::clean) << "that stays";
    }
    EXPECT_EQ(desk.desktop.dialogues.questions.back().title, "Reset settings to their defaults?");
}

TEST_F(SettingsTest, TheBackdropTakesAnyCodeAndRefusesTheRest) {
    window(SettingsTab::colour);
    auto* field = qobject_cast<QLineEdit*>(focus("Backdrop colour"));
    ASSERT_NE(field, nullptr);
    struct {
        const char *typed, *hex, *shows;
    } const rows[] = {{"rgb(255, 128, 0)", "#FF8000", "#ff8000"},
                      {"no colour", "#FF8000", "no colour"},
                      {"#11223380", "#112233", "#112233"}};
    for (const auto& [typed, hex, shows] : rows) {
        field->selectAll();
        QTest::keyClicks(field, QString::fromLatin1(typed));
        press("Return");
        EXPECT_EQ(preferences.backdropColour.value().hex(), hex) << typed;
        EXPECT_EQ(field->text(), QString::fromLatin1(shows));
        EXPECT_EQ(field->accessibleDescription().isEmpty(), field->text().startsWith(u'#'));
    }
    QTest::keyClicks(field, QStringLiteral("x"));
    press("Escape");
    EXPECT_EQ(field->text(), QStringLiteral("#112233"));
    EXPECT_TRUE(made->isVisible()) << "Escape only brought the code back";
}

TEST_F(SettingsTest, FoldersAreWatchedNamedTaggedAndLetGoOf) {
    window(SettingsTab::library);
    auto& dialogues = desk.desktop.dialogues;
    for (const auto* name : {"Studio", "Archive", "Studio"}) {
        std::filesystem::create_directories(desk.folder / name);
        dialogues.paths = {desk.folder / name};
        focus("Add a Folder…");
        press("Space");
        desk.settle();
    }
    EXPECT_EQ(desk.notices(), std::vector<std::string>{"That folder is already being watched"});
    const auto at = [&](std::size_t i) { return preferences.paletteLocations.value().at(i); };
    auto* list = focus("Folders");
    const auto act = [&](const char* text) {
        press("Return");
        choose(text);
        desk.settle();
    };
    press("Space");
    EXPECT_FALSE(at(0).isEnabled);
    EXPECT_FALSE(QAccessible::queryAccessibleInterface(list)->child(0)->state().checked);
    dialogues.names = {"Client Work", "2026"};
    for (const auto* text : {"Rename…", "Tag…", "Include Stylesheets", "Reveal"})
        act(text);
    EXPECT_TRUE(at(0).includesStylesheets);
    EXPECT_EQ(desk.desktop.fileBrowser.revealed.back(), desk.folder / "Studio");

    std::filesystem::remove(desk.folder / "Archive");
    focus("Rescan Palette Folders");
    press("Space");
    desk.settle();
    const auto path = [&](const char* name) { return "; " + (desk.folder / name).string() + "; "; };
    EXPECT_EQ(children(*list).at(0), "Client Work" + path("Studio") + "2026");
    EXPECT_EQ(children(*list).at(2), "Archive" + path("Archive") + "OFFLINE");

    focus("Folders");
    press("Down");
    dialogues.paths = {desk.folder.path()};
    act("Choose Again…");
    EXPECT_EQ(at(1).path, desk.folder.path());
    press("Home");
    act("Remove Tag");
    EXPECT_FALSE(at(0).tag.has_value());
    act("Stop Watching");
    EXPECT_EQ(at(0).nickname, "Archive");
    click(*list, {list->width() - 20.0, 20});
    choose("Stop Watching");
    EXPECT_FALSE(list->isVisible()) << "a sentence stands in its place";
}

TEST_F(SettingsTest, StarsAndTheCurrentFormatAreChosenByKeyAndPointer) {
    window(SettingsTab::code);
    const auto reads = [&](const char* sample) {
        return std::ranges::any_of(made->findChildren<QLabel*>(), [&](const QLabel* label) {
            return label->text() == QString::fromUtf8(sample);
        });
    };
    auto& list = dynamic_cast<FormatList&>(*focus("Formats of code"));
    const auto& favourites = preferences.formatFavourites;
    press("Space");
    EXPECT_NE(favourites.value().front(), ColorFormat(ColorFormat::cssHex));
    press("Space");
    EXPECT_EQ(favourites.value().back(), ColorFormat(ColorFormat::cssHex)) << "it comes last";
    EXPECT_TRUE(reads("#e4572e") && reads("rgb(228, 87, 46)"));
    preferences.formatOptions = {
        .removeWhitespace = true, .cssUppercase = true, .cssPrefixHash = false};
    EXPECT_TRUE(reads("E4572E") && reads("RGB(228,87,46)"));
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
    PaletteLocation longest, shorter;
    longest.nickname = std::string(10000, 'n') + "🎨 אבג";
    longest.path = "/" + std::string(200, 'p');
    longest.tag = std::string(10000, 't');
    shorter.id = *Uuid::fromText("00000000-0000-4000-8000-000000000001");
    shorter.nickname = "Archive";
    shorter.path = desk.folder / "archive";
    shorter.tag = "2026";
    preferences.paletteLocations = std::vector{longest, shorter};
    desk.settle();
    for (const auto size : allChoices<TypeSize>())
        for (const auto tab : allChoices<SettingsTab>()) {
            preferences.typeSize = size;
            preferences.appearance =
                size == TypeSize::larger ? Appearance::dark : Appearance::light;
            desk.settings.prefersHighContrast = size == TypeSize::largest;
            desk.applyStyle();
            window(tab);
            grab(*made, "settings-" + std::string(rawValue(tab)) + std::string(rawValue(size)));
            for (auto* one : made->findChildren<QWidget*>()) {
                const bool speaks = dynamic_cast<QLabel*>(one) || dynamic_cast<Segmented*>(one) ||
                                    dynamic_cast<QAbstractButton*>(one);
                if (!speaks || !one->isVisible()) continue;
                SCOPED_TRACE(toUtf8(one->accessibleName() + one->property("text").toString()));
                const auto width = one->width(), needed = one->heightForWidth(width);
                EXPECT_GE(width, one->minimumSizeHint().width());
                EXPECT_GE(one->height(), needed < 0 ? one->sizeHint().height() : needed);
                EXPECT_LE(one->mapTo(made.get(), QPoint(width, 0)).x(), made->width());
            }
        }
}

} // namespace
} // namespace tintra::test
