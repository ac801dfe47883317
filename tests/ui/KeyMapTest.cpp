#include "state/AppUndo.h"
#include "state/Bench.h"
#include "state/ContrastBoard.h"
#include "tests/ui/Desk.h"
#include "ui/actions/Menus.h"
#include "ui/help/AboutWindow.h"
#include "ui/help/ShortcutsWindow.h"
#include "ui/palette/PaletteWindow.h"
#include "ui/shared/Canvas.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMenu>
#include <functional>
#include <set>

namespace tintra::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A window of three swatches, the second one selected, the keyboard on the canvas.
struct Shown {
    explicit Shown(std::size_t count = 3, QSize size = {960, 600})
        : window(desk.ui, desk.stateWith(count)) {
        desk.models.preferences().formatFavourites = {ColorFormat::cssRGB, ColorFormat::cssHSL};
        open(window, size);
        state.selectedSwatch = 1;
    }
    std::size_t selected() const { return state.selectedSwatch.value().value_or(99); }
    std::string copied() const { return desk.desktop.clipboard.held.text; }

    Desk desk;
    AppState& state = desk.state();
    PaletteWindow window;
};

struct KeyCase {
    const char* keys;
    std::function<bool(Shown&)> did;
    std::function<void(Shown&)> before = [](Shown&) {};
};
void PrintTo(const KeyCase& one, std::ostream* out) {
    *out << one.keys;
}

bool asked(Shown& s, const char* what) {
    return s.desk.windows.taken() == std::vector<std::string>{what};
}

const KeyCase kKeys[] = {
    {"Ctrl+N", [](Shown& s) { return s.desk.desktop.dialogues.questions.size() == 1; }},
    {"Ctrl+Shift+N", [](Shown& s) { return asked(s, "open palette"); }},
    {"Ctrl+O", [](Shown& s) { return s.desk.desktop.dialogues.openQuestions.size() == 1; }},
    {"Ctrl+S", [](Shown& s) { return s.desk.desktop.dialogues.saveQuestions.size() == 1; }},
    {"Ctrl+Shift+S", [](Shown& s) { return s.desk.desktop.dialogues.saveQuestions.size() == 1; }},
    {"Ctrl+W", [](Shown& s) { return asked(s, "close palette"); }},
    {"Ctrl+Q", [](Shown& s) { return asked(s, "quit"); }},
    {"Ctrl+Z", [](Shown& s) { return s.state.swatches().size() == 3; },
     [](Shown& s) { s.state.removeSwatch(0); }},
    {"Ctrl+Shift+Z", [](Shown& s) { return s.state.swatches().size() == 2; },
     [](Shown& s) {
         s.state.removeSwatch(0);
         s.desk.models.undo().undo(s.state.place());
     }},
    {"Ctrl+Y", [](Shown& s) { return s.state.swatches().size() == 2; },
     [](Shown& s) {
         s.state.removeSwatch(0);
         s.desk.models.undo().undo(s.state.place());
     }},
    {"Ctrl+C", [](Shown& s) { return s.copied() == "#439701"; }},
    {"Ctrl+V", [](Shown& s) { return s.state.swatches().size() == 5; },
     [](Shown& s) { s.desk.desktop.clipboard.held.text = "#123456\n#654321"; }},
    {"Ctrl+Shift+Del", [](Shown& s) { return s.desk.desktop.dialogues.questions.size() == 1; }},
    {"Ctrl+,", [](Shown& s) { return asked(s, "settings"); }},
    {"N",
     [](Shown& s) {
         return s.state.swatches().size() == 4 && s.state.renamingSwatch.value() == 3;
     }},
    {"Ctrl+Shift+O", [](Shown& s) { return s.desk.desktop.dialogues.openQuestions.size() == 1; }},
    {"Ctrl+Shift+K", [](Shown& s) { return s.desk.models.contrast().entries().size() == 3; }},
    {"F2", [](Shown&) { return qobject_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr; }},
    {"Return", [](Shown& s) { return s.state.editorBuffer.value().has_value(); }},
    {"B", [](Shown& s) { return s.state.isPaletteSwatchBenched(1); }},
    {"K", [](Shown& s) { return s.desk.models.contrast().entries().size() == 1; }},
    {"Shift+K", [](Shown& s) { return s.desk.models.contrast().text() != nullptr; }},
    {"Ctrl+K", [](Shown& s) { return s.desk.models.contrast().ground() != nullptr; }},
    {"[", [](Shown& s) { return s.state.first() == Desk::colour(1); }},
    {"]", [](Shown& s) { return s.state.last() == Desk::colour(1); }},
    {"Ctrl+D", [](Shown& s) { return s.state.swatches().size() == 4; }},
    {"Ctrl+Shift+Left",
     [](Shown& s) { return s.state.swatches()[0].color == Desk::colour(1) && s.selected() == 0; }},
    {"Ctrl+Shift+Right",
     [](Shown& s) { return s.state.swatches()[2].color == Desk::colour(1) && s.selected() == 2; }},
    {"Del", [](Shown& s) { return s.state.swatches().size() == 2; }},
    {"Backspace", [](Shown& s) { return s.state.swatches().size() == 2; }},
    {"Ctrl+2", [](Shown& s) { return s.window.display() == PaletteDisplay::tiles; }},
    {"Ctrl+1", [](Shown& s) { return s.window.display() == PaletteDisplay::columns; },
     [](Shown& s) { s.window.setDisplay(PaletteDisplay::tiles); }},
    {"Ctrl+E", [](Shown& s) { return s.state.editorBuffer.value().has_value(); }},
    {"Ctrl+I", [](Shown& s) { return s.state.isPictureWindowOpen.value(); }},
    {"Ctrl+M", [](Shown& s) { return s.state.isCollapsed.value(); }},
    {"Ctrl+F",
     [](Shown& s) {
         return asked(s, "library") && s.desk.models.preferences().libraryFindRequested.value();
     }},
    {"Ctrl+L", [](Shown& s) { return asked(s, "library"); }},
    {"Ctrl+B", [](Shown& s) { return asked(s, "bench"); }},
    {"Ctrl+T", [](Shown& s) { return asked(s, "contrast"); }},
    {"F1", [](Shown& s) { return asked(s, "shortcuts"); }},
    {"V", [](Shown& s) { return s.state.vision.value() == Vision::protanopia; }},
    {"Shift+V", [](Shown& s) { return s.state.vision.value() == Vision::typical; },
     [](Shown& s) { s.state.vision = Vision::tritanopia; }},
    {"F8", [](Shown& s) { return s.window.notices().hasFocus(); },
     [](Shown& s) { s.window.notices().present(QStringLiteral("Here"), 1, {}); }},
    {"1", [](Shown& s) { return s.copied() == "rgb(67, 151, 1)"; }},
    {"H", [](Shown& s) { return s.state.swatches().size() > 3; },
     [](Shown& s) { s.state.mode = HarmonyMode::triadic; }},
    {"Left", [](Shown& s) { return s.selected() == 0; }},
    {"Right", [](Shown& s) { return s.selected() == 2; }},
    {"Home", [](Shown& s) { return s.selected() == 0; }},
    {"End", [](Shown& s) { return s.selected() == 2; }},
};

class KeyMap : public testing::TestWithParam<KeyCase> {};

TEST_P(KeyMap, DoesWhatItSays) {
    Shown shown;
    GetParam().before(shown);
    press(GetParam().keys);
    EXPECT_TRUE(GetParam().did(shown));
}

INSTANTIATE_TEST_SUITE_P(Window, KeyMap, testing::ValuesIn(kKeys));

TEST(Keys, AreNeverCommandsInAField) {
    Shown shown;
    press("F2");
    auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_TRUE(field);
    field->clear();
    QTest::keyClicks(field, QStringLiteral("pnbkvh[]19 "));
    for (const auto* keys : {"Backspace", "Left", "Del", "Home", "Ctrl+A", "Ctrl+Z", "Ctrl+K"})
        press(keys);
    EXPECT_EQ(shown.state.swatches().size(), 3U);
    EXPECT_EQ(shown.state.vision.value(), Vision::typical);
    EXPECT_THAT(shown.desk.models.contrast().entries(), IsEmpty());
    EXPECT_FALSE(shown.state.isPaletteSwatchBenched(1));
    field->setText(QStringLiteral("Sea"));
    press("Return");
    EXPECT_EQ(shown.state.swatches()[1].name, "Sea");
    EXPECT_FALSE(shown.state.editorBuffer.value()) << "the key went on to the canvas";
    press("F2");
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Sky"));
    press("Esc");
    EXPECT_EQ(shown.state.swatches()[1].name, "Sea") << "Esc leaves the name";
    press("Right");
    EXPECT_EQ(shown.selected(), 2U) << "the canvas has the keyboard again";
}

TEST(Keys, OfACanvasRestWhileAToolHasTheKeyboard) {
    Shown shown;
    press("F6");
    ASSERT_FALSE(dynamic_cast<Canvas*>(QApplication::focusWidget()));
    press("N");
    press("Del");
    EXPECT_EQ(shown.state.swatches().size(), 3U);
    press("Shift+F6");
    press("Del");
    EXPECT_EQ(shown.state.swatches().size(), 2U);
}

TEST(Keys, TabWalksTheToolsFromTheModeToMore) {
    Shown shown;
    press("F6");
    press("F6");
    std::vector<std::string> tools;
    for (int i = 0; i < 11; ++i, press("Tab"))
        tools.push_back(toUtf8(QApplication::focusWidget()->accessibleName()));
    EXPECT_EQ(tools.front(), "Mode: Palette");
    EXPECT_EQ(tools.back(), "More");
}

TEST(Keys, GoBackToTheSwatchesWhenTheEditorCloses) {
    Shown shown;
    auto* canvas = QApplication::focusWidget();
    press("Return");
    press("F6");
    ASSERT_NE(QApplication::focusWidget(), canvas);
    press("Esc");
    EXPECT_FALSE(shown.state.editorBuffer.value());
    EXPECT_EQ(QApplication::focusWidget(), canvas);
}

// Keys that are under way when a menu closes still come to it.
TEST(Keys, OfAMenuThatHasJustClosedAreNotLost) {
    Shown shown;
    auto* canvas = QApplication::focusWidget();
    press("F10");
    auto* menu = QApplication::activePopupWidget();
    ASSERT_TRUE(menu);
    QTest::keyClick(menu, Qt::Key_Escape);
    ASSERT_NE(QApplication::focusWidget(), canvas) << "it is the bar's turn";
    QTest::keyClick(menu, Qt::Key_Escape);
    EXPECT_EQ(QApplication::focusWidget(), canvas);
    QTest::keyClick(menu, Qt::Key_Right);
    EXPECT_EQ(shown.selected(), 2U);
}

TEST(Keys, SpaceShowsTheColourAloneWhileHeld) {
    Shown shown;
    auto* canvas = QApplication::focusWidget();
    const auto middle = [&] {
        return canvas->grab().toImage().pixelColor(canvas->width() / 8, canvas->height() / 2);
    };
    const auto before = middle();
    QTest::keyPress(canvas, Qt::Key_Space);
    EXPECT_EQ(middle(), toQColor(Desk::colour(1)));
    QTest::keyRelease(canvas, Qt::Key_Space);
    EXPECT_EQ(middle(), before);
}

TEST(Actions, AreEachInTheirMenuOnceWithTitleAndKey) {
    Shown shown;
    std::set<std::string_view> raws;
    std::set<std::pair<WindowKind, std::string>> keys;
    for (const auto& row : allActions()) {
        EXPECT_TRUE(raws.insert(row.raw).second) << row.raw << " stands twice";
        EXPECT_TRUE(row.perform || row.fill) << row.raw;
        for (const auto& key : keySequences(row)) {
            EXPECT_FALSE(key.isEmpty()) << row.raw;
            for (const auto kind : {WindowKind::palette, WindowKind::bench, WindowKind::contrast,
                                    WindowKind::library})
                EXPECT_TRUE(!row.in.contains(kind) ||
                            keys.emplace(kind, toUtf8(key.toString())).second)
                    << row.raw << " shares " << toUtf8(key.toString());
        }
        const auto listed = actionsOf(row.menu);
        EXPECT_EQ(std::ranges::count(listed, row.value), row.menu == MenuId::none ? 0 : 1)
            << row.raw;
    }
    QMenu menu;
    fillMenu(menu, MenuId::swatch, shown.window.context());
    QStringList titles;
    for (const auto* action : menu.actions())
        titles << action->text();
    EXPECT_TRUE(titles.contains(QStringLiteral("Put on the Bench")));
    EXPECT_FALSE(titles.contains(QStringLiteral("Send to Photoshop"))) << "not installed";
    shown.state.toggleBenchedSwatch(1);
    EXPECT_EQ(actionTitle(actionRow(ActionId::toggleBench), shown.window.context()),
              QStringLiteral("Take off the Bench"));
    shown.state.mode = HarmonyMode::ramp;
    EXPECT_EQ(actionTitle(actionRow(ActionId::clear), shown.window.context()),
              QStringLiteral("Clear Seeds"));
}

TEST(Shortcuts, AreFoundByCommandAndByKey) {
    Desk desk;
    ShortcutsWindow window(desk.ui);
    open(window);
    grab(window, "shortcuts");
    EXPECT_TRUE(accessible(window, "Save As"));
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("ctrl+shift+v"));
    EXPECT_TRUE(accessible(window, "Type or Paste Values"));
    EXPECT_FALSE(accessible(window, "Save As"));
    press("Esc");
    EXPECT_TRUE(accessible(window, "Save As"));
    press("Esc");
    EXPECT_FALSE(window.isVisible());
    AboutWindow about(desk.ui);
    open(about);
    about.showAcknowledgements();
    EXPECT_TRUE(accessible(about, "The names given to colours"));
    grab(about, "about");
}

} // namespace
} // namespace tintra::test
