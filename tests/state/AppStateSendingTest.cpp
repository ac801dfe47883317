#include "state/QuickPick.h"
#include "tests/state/PaletteDesk.h"

#include <gmock/gmock.h>

namespace tintra {
namespace {

using testing::ElementsAre;
using Role = Contrast::Role;

TEST(AppStateSending, TheBenchTakesASwatchOnceAndOpaque) {
    PaletteDesk desk;
    auto& state = desk.openWith(1);
    auto& other = desk.openWith(1); // the same colour
    for (const double alpha : {0.9985, 0.999})
        state.addToPalette({1, 0, 0, alpha}, AppState::Duplicates::allow);
    state.toggleBenchedSwatch(0);
    EXPECT_TRUE(state.isPaletteSwatchBenched(0));
    EXPECT_FALSE(other.isPaletteSwatchBenched(0));
    other.toggleBenchedSwatch(0);
    for (const std::size_t at : {1U, 2U, 1U, 2U})
        state.toggleBenchedSwatch(at);
    EXPECT_THAT(desk.notices(),
                ElementsAre("Added #000080 to the Bench",
                            "#000080 is already on the Bench, from another window",
                            "Sent to Bench as opaque · alpha stays on the palette",
                            "#FF0000 is already on the Bench, from this palette",
                            "Took #FF0000FF off the Bench", "Added #FF0000 to the Bench"));
    state.replaceInPalette(0, {0, 0, 1, 1});
    EXPECT_EQ(desk.bench.benchColumns()[0].color, (WashColor{0, 0, 1, 1})) << "a column follows";

    const WashColor band{0, 1, 0, 1};
    state.toggleBenchedBand(band, {});
    EXPECT_TRUE(state.isBandBenched(band));
    state.toggleBenchedBand(band, {});
    EXPECT_THAT(desk.notices(), ElementsAre("Staged #00FF00 on the Bench · a copy, so edits there "
                                            "leave the harmony as it is",
                                            "Took #00FF00 off the Bench"));
}

TEST(AppStateSending, AFullContrastBoardLetsItsOldestLooseEntryGo) {
    PaletteDesk desk;
    auto& state = desk.openWith(33);
    const ToastPlace where{ToastWindow::contrast, {}};
    const auto send = [&](std::size_t at, auto... more) {
        state.sendToContrast(PaletteDesk::colour(at), "n" + std::to_string(at), more..., where);
    };
    send(0, Role::ground);
    EXPECT_FALSE(desk.contrast.text()) << "the role asked for, and no other";
    desk.contrast.clear();
    for (std::size_t i = 0; i < 32; ++i)
        send(i);
    EXPECT_EQ(desk.notices()[32], "Sent #1F0080 to Contrast");
    send(0);
    EXPECT_THAT(desk.notices(), ElementsAre("#000080 is already in Contrast"));
    const auto before = desk.contrast.content().value();
    send(32); // the first two are the text and the ground
    EXPECT_EQ(desk.contrast.entries().size(), 32U);
    EXPECT_EQ(desk.desktop.toasts.shown.back().window, where);
    desk.desktop.toasts.shown.back().action->perform();
    EXPECT_EQ(desk.contrast.content().value(), before);
    send(5, Role::text);
    send(32, Role::ground);
    EXPECT_THAT(desk.notices(),
                ElementsAre("Sent #200080 to Contrast · n2 let go to make room",
                            "#050080 is the text in Contrast",
                            "#200080 is the ground in Contrast · n0 let go to make room"));
    EXPECT_EQ(desk.contrast.text()->givenName, "n5");
    EXPECT_EQ(desk.contrast.ground()->givenName, "n32");
    state.toggleContrast(PaletteDesk::colour(32), {}, where);
    EXPECT_FALSE(desk.contrast.ground());
    desk.desktop.toasts.shown.back().action->perform();
    EXPECT_EQ(desk.contrast.ground()->givenName, "n32");
}

TEST(AppStateSending, AllSwatchesFillTheBoardUpOnly) {
    using Count = std::size_t;
    const std::vector<std::tuple<Count, Count, Count, Count, std::vector<std::string>>> rows{
        {0, 40, 0, 32, {"Sent the first 32 of 40 · Contrast is full at 32"}},
        {30, 4, 0, 32, {"Sent 2 of 4 · Contrast is full at 32"}},
        {32, 2, 1, 32, {"Contrast is full at 32"}},
        {32, 1, 1, 32, {"Already in Contrast"}},
        {32, 3, 3, 32, {"All 3 already in Contrast"}},
        {30, 4, 2, 32, {"Sent 2 to Contrast · 2 already there"}},
        {0, 2, 0, 2, {}},
        {2, 1, 0, 3, {}},
    };
    for (const auto& [held, offered, overlap, after, notices] : rows) {
        PaletteDesk desk;
        for (Count i = 0; i < held; ++i)
            desk.contrast.hold({}, PaletteDesk::colour(1000 - overlap + i));
        auto& state = desk.open();
        for (Count i = 1000 - offered; i < 1000; ++i)
            state.addToPalette(PaletteDesk::colour(i), AppState::Duplicates::refuse);
        state.sendAllToContrast();
        EXPECT_EQ(desk.notices(), notices);
        EXPECT_EQ(desk.contrast.entries().size(), after);
        EXPECT_EQ(desk.contrast.mode.value() == ContrastBoard::Mode::matrix, after >= 3);
    }
}

TEST(AppStateSending, SortingSaysWhatItDidAndCanBeUndone) {
    PaletteDesk desk;
    auto& state = desk.open();
    for (const double grey : {1.0, 0.0})
        desk.contrast.send({}, {grey, grey, grey, 1});
    for (const bool lightestFirst : {true, false, false, true})
        state.sortContrastByLightness(lightestFirst, state.place());
    desk.desktop.toasts.shown.back().action->perform();
    EXPECT_EQ(desk.contrast.entries()[0].color.r, 0);
    EXPECT_THAT(desk.notices(),
                ElementsAre("Already in order", "Sorted dark to light",
                            "Already in order, dark to light", "Sorted light to dark"));
}

TEST(AppStateSending, AQuickPickGoesWhereItsKeysSay) {
    PaletteDesk desk;
    auto& state = desk.open();
    const WashColor red{1, 0, 0, 1}, faint{0, 0, 1, 0.5};
    state.quickPick(red, {.command = true, .shift = true});
    state.quickPick(faint, {.option = true});
    state.quickPick(red, {.shift = true});
    state.quickPick(red, {.shift = true});
    EXPECT_EQ(desk.desktop.clipboard.held, Clipboard::Content{});
    state.copyAll(std::array{red, faint}, {});
    EXPECT_EQ(desk.desktop.clipboard.held.text, "#ff0000\n#0000ff80");
    state.quickPick(faint, {});
    EXPECT_THAT(desk.notices(),
                ElementsAre("First seed #FF0000", "Last seed #0000FF80",
                            "Added #FF0000 to Untitled Palette",
                            "#FF0000 is already in this palette", "Copied #0000FF80"));
    EXPECT_EQ(state.seeds().value(), (Seeds{red, faint, true}));
    const Clipboard::Content copied{"#0000ff80", {{0, 0, 1, 0.5}}};
    EXPECT_EQ(desk.desktop.clipboard.held, copied);
    EXPECT_EQ(state.copyTick.value(), 2U);
    EXPECT_EQ(desk.preferences.recents.value(), (std::vector{faint, red}));

    desk.desktop.clipboard.held = {};
    quickPickWithoutWindow(faint, {.shift = true}, desk.desktop.services, desk.preferences);
    EXPECT_EQ(desk.desktop.clipboard.held, copied);
    EXPECT_EQ(state.swatches().size(), 1U);
    quickPickWithoutWindow(red, {}, desk.desktop.services, desk.preferences);
    EXPECT_THAT(desk.notices(),
                ElementsAre("No palette window open · copied #0000FF80", "Copied #FF0000"));
}

} // namespace
} // namespace tintra
