#include "state/Models.h"
#include "tests/ui/Desk.h"
#include "ui/palette/BandsCanvas.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QMenu>

namespace tintra::test {
namespace {

using Spot = BandsCanvas::Spot;

class HarmonyTest : public testing::Test {
protected:
    void show(HarmonyMode mode, int steps, int shades, QSize size = {960, 428}) {
        state.mode = mode;
        state.steps = steps;
        state.shadesPerAnchor = shades;
        open(canvas, size);
    }
    QRectF rectOf(Spot spot) const {
        return canvas.items().at(static_cast<std::size_t>(canvas.itemOf(spot))).rect;
    }
    std::string codeOf(Spot spot) const { return state.bands()[spot.band][spot.column].hex(); }
    std::size_t count(int kind) const {
        return static_cast<std::size_t>(
            std::ranges::count(canvas.items(), kind, &CanvasItem::kind));
    }
    static void choose(const char* row) {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        for (auto* action : menu->actions())
            if (action->text() == QLatin1String(row)) action->trigger();
        menu->close();
    }

    Desk desk;
    AppState& state = desk.state();
    BandsCanvas canvas{desk.ui, state, nullptr};
};

TEST_F(HarmonyTest, EveryModeShowsItsBands) {
    const struct {
        HarmonyMode mode;
        int steps, shades;
        std::size_t bands, columns;
        const char* place; ///< what the last colour of the last band is called
    } rows[] = {
        {HarmonyMode::ramp, 9, 5, 1, 9, "Last, 9 of 9"},
        {HarmonyMode::ramp, 32, 1, 1, 32, "Last, 32 of 32"},
        {HarmonyMode::monochromatic, 7, 1, 1, 7, "7 of 7"},
        {HarmonyMode::complementary, 5, 1, 1, 2, "180°, 2 of 2"},
        {HarmonyMode::complementary, 5, 4, 2, 4, "180°, 4 of 4"},
        {HarmonyMode::splitComplementary, 5, 2, 3, 2, "210°, 2 of 2"},
        {HarmonyMode::triadic, 5, 5, 3, 5, "240°, 5 of 5"},
        {HarmonyMode::tetradic, 5, 16, 4, 16, "240°, 16 of 16"},
        {HarmonyMode::square, 5, 3, 4, 3, "270°, 3 of 3"},
    };
    for (const auto& [mode, steps, shades, bands, columns, place] : rows)
        for (const QSize size :
             {QSize(240, 60), QSize(360, 300), QSize(960, 428), QSize(3840, 2000)}) {
            SCOPED_TRACE(std::string(rawValue(mode)) + " " + std::to_string(size.width()));
            show(mode, steps, shades, size);
            EXPECT_EQ(count(BandsCanvas::cell), bands * columns);
            EXPECT_EQ(count(BandsCanvas::more), bands > 1 ? bands : 0);
            const auto* last =
                accessible(canvas, "Harmony")->child(canvas.itemOf({bands - 1, columns - 1}));
            EXPECT_EQ(last->role(), QAccessible::Cell);
            EXPECT_THAT(toUtf8(last->text(QAccessible::Description)), testing::EndsWith(place));
            EXPECT_EQ(QString::compare(last->text(QAccessible::Value),
                                       fromUtf8(codeOf({bands - 1, columns - 1})),
                                       Qt::CaseInsensitive),
                      0);
            for (const auto& item : canvas.items()) {
                EXPECT_TRUE(QRectF(canvas.rect()).contains(item.rect));
                if (item.kind == BandsCanvas::label) continue;
                EXPECT_GE(item.rect.width(), 24);
                EXPECT_GE(item.rect.height(), 24);
            }
        }
}

TEST_F(HarmonyTest, WalksInTwoDimensions) {
    show(HarmonyMode::triadic, 5, 5);
    press("Home");
    const struct {
        const char* key;
        int kind;
        Spot at;
    } steps[] = {
        {"Right", BandsCanvas::cell, {0, 1}}, {"Down", BandsCanvas::cell, {1, 1}},
        {"End", BandsCanvas::cell, {1, 4}},   {"Right", BandsCanvas::more, {1, 0}},
        {"Down", BandsCanvas::more, {2, 0}},  {"Left", BandsCanvas::cell, {2, 4}},
        {"PgUp", BandsCanvas::cell, {0, 4}},  {"Home", BandsCanvas::cell, {0, 0}},
        {"Up", BandsCanvas::cell, {0, 0}},    {"PgDown", BandsCanvas::cell, {2, 0}},
    };
    for (const auto& [key, kind, at] : steps) {
        press(key);
        const auto wanted =
            kind == BandsCanvas::cell ? canvas.itemOf(at) : canvas.find(kind, at.band);
        ASSERT_EQ(canvas.focused(), wanted) << key;
        EXPECT_EQ(canvas.target()->color, state.bands()[at.band][at.column]) << key;
    }
    // The focus stays with its place while the colours change, and goes with it.
    state.swapSeeds();
    EXPECT_EQ(canvas.target()->color, state.bands()[2][0]);
    state.mode = HarmonyMode::complementary;
    EXPECT_EQ(canvas.target()->color, state.bands()[0][0]);
}

TEST_F(HarmonyTest, ActsOnAColour) {
    show(HarmonyMode::triadic, 5, 5);
    const auto colour = state.bands()[1][2];
    const auto in = rectOf({1, 2});
    const auto buttons = desk.painter.buttonRects(in, SwatchShape::bandCell, 4);
    const auto copied = [&] {
        const auto text = std::exchange(desk.desktop.clipboard.held.text, {});
        return WashColor::fromHex(text).value_or(WashColor{}).identity();
    };
    click(canvas, buttons[0].center());
    EXPECT_EQ(copied(), colour.identity());
    click(canvas, QPointF(in.left() + 20, in.bottom() - 20));
    EXPECT_EQ(copied(), colour.identity());
    click(canvas, buttons[1].center());
    ASSERT_EQ(state.swatches().size(), 1U);
    EXPECT_EQ(state.swatches()[0].color, colour);
    press("Return");
    EXPECT_EQ(state.swatches().size(), 1U) << "it is there already";
    EXPECT_EQ(desk.notices().size(), 1U);
    press("Left");
    press("Space");
    EXPECT_EQ(state.swatches().at(1).color, state.bands()[1][1]);
    click(canvas, buttons[2].center());
    EXPECT_TRUE(state.isBandBenched(colour));
    click(canvas, buttons[2].center());
    EXPECT_FALSE(state.isBandBenched(colour));
    click(canvas, buttons[3].center());
    EXPECT_TRUE(desk.models.contrast().held(colour));
    // Elsewhere a click only chooses.
    click(canvas, rectOf({0, 3}).center());
    EXPECT_EQ(canvas.target()->color, state.bands()[0][3]);
    EXPECT_TRUE(desk.desktop.clipboard.held.text.empty());
}

TEST_F(HarmonyTest, ActsOnABand) {
    show(HarmonyMode::triadic, 5, 5);
    const auto openMore = [&] {
        click(canvas, canvas.items()[static_cast<std::size_t>(canvas.find(BandsCanvas::more, 1))]
                          .rect.center());
    };
    openMore();
    choose("Add Band");
    EXPECT_EQ(state.colors(), state.bands()[1]);
    openMore();
    choose("Copy All");
    EXPECT_EQ(std::ranges::count(desk.desktop.clipboard.held.text, '\n'), 4);
    openMore();
    choose("Put Band on the Bench");
    EXPECT_EQ(desk.models.bench().benchColumns().size(), 5U);
    canvas.setFocus(Qt::TabFocusReason);
    press("Return");
    choose("Take Band off the Bench");
    EXPECT_TRUE(desk.models.bench().benchColumns().empty());
}

} // namespace
} // namespace tintra::test
