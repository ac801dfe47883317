#include "state/ContrastBoard.h"
#include "tests/ui/Desk.h"
#include "tests/ui/Parts.h"
#include "ui/actions/ActionTable.h"
#include "ui/palette/CollapsedStrip.h"
#include "ui/palette/PaletteWindow.h"
#include "ui/palette/StripCells.h"

#include <gtest/gtest.h>

#include <QContextMenuEvent>
#include <QMenu>

namespace tintra::test {
namespace {

StripCells& cellsOf(CollapsedStrip& strip) {
    return *dynamic_cast<StripCells*>(accessible(strip, "Palette")->object());
}

std::size_t shownIn(const StripCells& cells) {
    return static_cast<std::size_t>(std::ranges::count_if(
        cells.items(), [](const CanvasItem& item) { return !item.rect.isEmpty(); }));
}

TEST(StripTest, PagesWhatHasNoRoom) {
    const struct {
        std::size_t count;
        CompactOrientation lies;
        int length;
        bool pages;
    } rows[] = {{12, CompactOrientation::horizontal, 560, false},
                {1, CompactOrientation::horizontal, 160, false},
                {12, CompactOrientation::horizontal, 160, true},
                {256, CompactOrientation::horizontal, 560, true},
                {12, CompactOrientation::vertical, 480, false},
                {256, CompactOrientation::vertical, 160, true}};
    for (const auto& [count, lies, length, pages] : rows) {
        SCOPED_TRACE(std::to_string(count) + " in " + std::to_string(length));
        Desk desk;
        auto& state = desk.stateWith(count);
        state.compactOrientation = lies;
        CollapsedStrip strip(desk.ui, state, nullptr);
        const bool level = lies == CompactOrientation::horizontal;
        open(strip, level ? QSize(length, 44) : QSize(52, length));
        auto& cells = cellsOf(strip);
        EXPECT_EQ(cells.pages() > 1, pages);
        EXPECT_EQ(children(cells).size(), count);
        EXPECT_EQ(strip.minimumSizeHint(), level ? QSize(160, 44) : QSize(52, 160));
        // Walked from end to end, everything is met and can be hit.
        cells.setFocus(Qt::TabFocusReason);
        press("Home");
        for (std::size_t i = 0; i < count; ++i) {
            EXPECT_EQ(state.selectedSwatch.value(), i);
            const auto rect = cells.items()[i].rect;
            EXPECT_GE(level ? rect.width() : rect.height(), 24);
            EXPECT_TRUE(QRectF(cells.rect()).contains(rect));
            press(level ? "Right" : "Down");
        }
        EXPECT_EQ(cells.page() + 1, cells.pages());
        if (!pages) continue;
        auto* back = qobject_cast<QWidget*>(accessible(strip, "Previous colours")->object());
        click(*back, QRectF(back->rect()).center());
        EXPECT_EQ(cells.page() + 2, cells.pages());
        EXPECT_LE(shownIn(cells), count);
    }
}

TEST(StripTest, CopiesAndUnfolds) {
    Desk desk;
    auto& state = desk.stateWith(8);
    state.renameSwatch(2, "Buoy");
    state.isCollapsed = true;
    CollapsedStrip strip(desk.ui, state, nullptr);
    open(strip, {360, 44});
    auto& cells = cellsOf(strip);
    const auto copied = [&] {
        const auto text = std::exchange(desk.desktop.clipboard.held.text, {});
        return WashColor::fromHex(text).value_or(WashColor{}).identity();
    };
    click(cells, cells.items()[2].rect.center());
    EXPECT_EQ(copied(), state.swatches()[2].color.identity());
    EXPECT_TRUE(cells.toolTip().contains(QStringLiteral("Buoy")));
    press("Right");
    press("Return");
    EXPECT_EQ(copied(), state.swatches()[3].color.identity());
    EXPECT_TRUE(accessible(cells, "Buoy"));
    // A harmony is shown in place of the swatches while the window shows one.
    state.steps = 5;
    state.mode = HarmonyMode::ramp;
    ASSERT_EQ(cells.items().size(), 5U);
    click(cells, cells.items()[4].rect.center());
    EXPECT_EQ(copied(), state.last().identity());
    state.mode = HarmonyMode::paletteBuilder;
    state.emptyPalette();
    EXPECT_TRUE(cells.items().empty());
    press("Right");
    auto* expand = qobject_cast<QWidget*>(accessible(strip, "Expand")->object());
    click(*expand, QRectF(expand->rect()).center());
    EXPECT_FALSE(state.isCollapsed.value());
}

TEST(StripTest, IsWorkedWithoutUnfoldingIt) {
    Desk desk;
    auto& state = desk.stateWith(4);
    state.isCollapsed = true;
    PaletteWindow window(desk.ui, state);
    open(window);
    auto& cells = partOf<StripCells>(window);
    EXPECT_EQ(window.focusWidget(), &cells);
    const auto menu = [&](std::size_t at) {
        const auto place = cells.items()[at].rect.center().toPoint();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, cells.mapToGlobal(place));
        QCoreApplication::sendEvent(&cells, &event);
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    };
    const auto choose = [](QMenu& in, const char* title) {
        for (auto* action : in.actions())
            if (action->text() == QString::fromUtf8(title)) action->trigger();
        in.close();
        QCoreApplication::processEvents();
    };
    auto* opened = menu(2);
    ASSERT_TRUE(opened);
    choose(*opened, "Remove");
    EXPECT_EQ(state.colors(), (std::vector{Desk::colour(0), Desk::colour(1), Desk::colour(3)}));
    // Of a harmony the colour that has the focus in the strip is meant.
    state.steps = 5;
    state.mode = HarmonyMode::ramp;
    opened = menu(4);
    ASSERT_TRUE(opened);
    choose(*opened, "Send to Contrast");
    ASSERT_EQ(desk.models.contrast().entries().size(), 1U);
    EXPECT_EQ(desk.models.contrast().entries()[0].color, state.last());
    state.mode = HarmonyMode::paletteBuilder;
    EXPECT_TRUE(state.isCollapsed.value());
    EXPECT_TRUE(perform(ActionId::renameSwatch, window.context()));
    EXPECT_FALSE(state.isCollapsed.value()) << "a name is edited where it can be seen";
    EXPECT_TRUE(accessible(window, "Name of the swatch"));
}

} // namespace
} // namespace tintra::test
