#include "tests/ui/Desk.h"
#include "tests/ui/Parts.h"
#include "ui/palette/BandsCanvas.h"
#include "ui/palette/EmptyState.h"
#include "ui/palette/PaletteCanvas.h"
#include "ui/palette/PaletteWindow.h"
#include "ui/shared/AccessibilityEvents.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace tintra::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;

/// What accessibility is told while it lives, a line each: "event: name, description".
class Heard {
public:
    Heard() { listenToAccessibility(listen); }
    ~Heard() { listenToAccessibility({}); }
    Heard(const Heard&) = delete;
    Heard& operator=(const Heard&) = delete;

    static std::vector<std::string> taken() {
        QCoreApplication::processEvents();
        return std::exchange(lines, {});
    }

private:
    static void listen(QAccessibleEvent& event) {
        static const std::map<int, const char*> kinds{
            {QAccessible::Focus, "focus"},
            {QAccessible::Selection, "selection"},
            {QAccessible::NameChanged, "name"},
            {QAccessible::DescriptionChanged, "description"},
            {QAccessible::ValueChanged, "value"},
            {QAccessible::StateChanged, "state"},
            {QAccessible::ObjectReorder, "children"},
            {QAccessible::ObjectShow, "show"},
            {QAccessible::Alert, "alert"},
        };
        const auto kind = kinds.find(event.type());
        const auto* from = event.accessibleInterface();
        if (kind == kinds.end() || !from) return;
        lines.push_back(std::string(kind->second) + ": " + toUtf8(from->text(QAccessible::Name)) +
                        ", " + toUtf8(from->text(QAccessible::Description)));
    }

    static inline std::vector<std::string> lines;
};

QAccessible::Role roleOf(QWidget& in, const char* name) {
    const auto* found = accessible(in, name);
    return found ? found->role() : QAccessible::NoRole;
}

TEST(Accessibility, NamesEveryPartOfTheWindow) {
    Desk desk;
    auto& state = desk.stateWith(3);
    PaletteWindow window(desk.ui, state);
    open(window, {1200, 700});
    state.editSwatch(1);
    const struct {
        const char* name;
        QAccessible::Role role;
        const char* description;
    } rows[] = {
        {"Tools", QAccessible::Grouping, ""},
        {"Save As…", QAccessible::Button, "Ctrl+Shift+S"},
        {"Colour Editor", QAccessible::CheckBox, "Ctrl+E"},
        {"Black", QAccessible::ListItem, "#000000, 1 of 3"},
        {"Colour editor", QAccessible::Grouping, ""},
        {"Saturation and brightness", QAccessible::Slider, "99 %, 59 %"},
        {"Lightness", QAccessible::Slider, "0.600"},
        {"Facts", QAccessible::Grouping, ""},
    };
    for (const auto& row : rows) {
        const auto* found = accessible(window, row.name);
        ASSERT_TRUE(found) << row.name;
        EXPECT_EQ(found->role(), row.role) << row.name;
        EXPECT_EQ(toUtf8(found->text(QAccessible::Description)), row.description);
    }
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&window)->role(), QAccessible::Window);
    EXPECT_TRUE(accessible(window, "Colour Editor")->state().checked);
    state.mode = HarmonyMode::triadic;
    EXPECT_EQ(roleOf(window, "Harmony"), QAccessible::Table);
    const auto* cell =
        QAccessible::queryAccessibleInterface(&partOf<BandsCanvas>(window))->child(0);
    EXPECT_EQ(cell->role(), QAccessible::Cell);
    EXPECT_THAT(toUtf8(cell->text(QAccessible::Description)), HasSubstr("0°, 1 of 3"));
}

TEST(Accessibility, ItemsArePressedAndGivenTheFocus) {
    Desk desk;
    auto& state = desk.stateWith(3);
    PaletteWindow window(desk.ui, state);
    open(window, {1000, 600});
    auto* last = QAccessible::queryAccessibleInterface(&partOf<PaletteCanvas>(window))->child(2);
    ASSERT_TRUE(last && last->actionInterface());
    last->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(state.selectedSwatch.value(), 2U);
    EXPECT_TRUE(last->state().focused);
    EXPECT_FALSE(state.editorBuffer.value());
    EXPECT_TRUE(doDefault(accessible(window, "Black")));
    EXPECT_EQ(state.editorBuffer.value()->swatchID, state.swatches()[0].id)
        << "as the Enter key does";

    state.toggleEditor();
    state.emptyPalette();
    auto& empty = partOf<EmptyState>(window);
    EXPECT_EQ(empty.items()[static_cast<std::size_t>(empty.focused())].name,
              u"Type or paste values")
        << "the keyboard goes on to what to begin with";
    const auto* quote = QAccessible::queryAccessibleInterface(&empty)->child(0);
    EXPECT_EQ(quote->role(), QAccessible::StaticText);
    EXPECT_FALSE(quote->state().focusable);
    EXPECT_TRUE(doDefault(accessible(empty, "Open a picture")));
    EXPECT_EQ(desk.desktop.dialogues.openQuestions.size(), 1U);
}

TEST(Accessibility, TellsOfWhatChanges) {
    Desk desk;
    auto& state = desk.stateWith(3);
    PaletteWindow window(desk.ui, state);
    open(window, {1200, 700});
    state.selectedSwatch = 0;
    const std::string kSecond = state.swatchName(1) + ", #439701, 2 of 3";
    const Heard heard;
    press("Right");
    auto told = Heard::taken();
    EXPECT_THAT(told, Contains("focus: " + kSecond)) << testing::PrintToString(told);
    EXPECT_THAT(told, Contains("selection: " + kSecond));

    press("F6");
    Heard::taken();
    press("Shift+F6");
    told = Heard::taken();
    ASSERT_FALSE(told.empty());
    EXPECT_EQ(told.back(), "focus: " + kSecond) << "the swatch, after the canvas";

    state.renameSwatch(1, "Sea");
    EXPECT_THAT(Heard::taken(), Contains("name: Sea, #439701, 2 of 3"));
    state.editSwatch(1);
    Heard::taken();
    auto* lightness = accessible(window, "Lightness")->object();
    qobject_cast<QWidget*>(lightness)->setFocus(Qt::TabFocusReason);
    Heard::taken();
    press("Up");
    told = Heard::taken();
    EXPECT_THAT(told, Contains("value: Lightness, 0.610")) << testing::PrintToString(told);
    EXPECT_THAT(told, Contains(HasSubstr("description: Sea, #"))) << "in the column at once";

    window.notices().present(QStringLiteral("One"), 4, {});
    EXPECT_THAT(Heard::taken(), Contains("alert: One, "));
    window.notices().present(QStringLiteral("Two"), 4, {});
    told = Heard::taken();
    EXPECT_THAT(told, Contains("alert: Two, "));
    EXPECT_THAT(told, Contains("show: Two, ")) << "though the bar was there";
    window.notices().dismiss();
    partOf<PaletteCanvas>(window).setFocus(Qt::TabFocusReason);
    Heard::taken();
    state.removeSwatch(1);
    told = Heard::taken();
    EXPECT_THAT(told, Contains("children: Palette, "));
    EXPECT_THAT(told, Contains("focus: " + state.swatchName(1) + ", #862e02, 2 of 2"));
}

TEST(Canvas, PagesByWhatIsSeen) {
    Desk desk;
    auto& state = desk.stateWith(120);
    PaletteWindow window(desk.ui, state);
    window.setDisplay(PaletteDisplay::tiles);
    open(window, {700, 460});
    auto& canvas = partOf<PaletteCanvas>(window);
    state.selectedSwatch = 2;
    canvas.setFocus(Qt::TabFocusReason);
    const auto seen = canvas.visibleRegion().boundingRect().height();
    const auto top = [&] { return canvas.items()[*state.selectedSwatch.value()].rect.top(); };
    const auto left = canvas.items()[2].rect.left();
    auto before = top();
    press("PgDown");
    EXPECT_GT(top() - before, seen / 2);
    EXPECT_LE(top() - before, seen * 3 / 2);
    EXPECT_EQ(canvas.items()[*state.selectedSwatch.value()].rect.left(), left);
    press("PgUp");
    EXPECT_EQ(state.selectedSwatch.value(), 2U);
    for (int i = 0; i < 40; ++i)
        press("PgDown");
    before = top();
    EXPECT_EQ(before, canvas.items()[119].rect.top()) << "in the last row";
}

} // namespace
} // namespace tintra::test
