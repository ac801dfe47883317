#include "tests/state/PaletteDesk.h"

#include <gmock/gmock.h>

namespace tintra {
namespace {

using testing::ElementsAre;

Drag dragOf(const AppState& state, std::size_t at) {
    const auto& swatch = state.swatches()[at];
    return {swatch.color, swatch.name, DragOfSwatch{{{}, state.id(), swatch.id, at}}};
}

TEST(AppStateDrops, ADropIsRefusedInWords) {
    PaletteDesk desk;
    auto& full = desk.openWith(256);
    auto& other = desk.openWith(1);
    const WashColor red{1, 0, 0, 1};
    struct Row {
        AppState& onto;
        Drag drag;
        bool moving;
        std::vector<std::pair<std::string, double>> refusals;
    };
    const std::string onlySwatches = "Only a palette's swatch moves · let go of ⌘ to add";
    const std::vector<Row> rows{
        {full, {red, {}, DragOfLibrarySwatch{}}, false, {{"The palette is full at 256", 1.4}}},
        {full, dragOf(other, 0), true, {{"#000080 is already in this palette", 1.4}}},
        {other, {red, {}, DragOfBand{}}, true, {{onlySwatches, 2.5}}},
        {full, dragOf(full, 3), false, {}},
        {other, dragOf(full, 3), true, {}},
        {other, {red, {}, DragOfForeignColour{}}, false, {}},
    };
    for (const auto& [onto, drag, moving, refusals] : rows) {
        EXPECT_EQ(onto.refusal(drag, moving).has_value(), !refusals.empty());
        EXPECT_EQ(onto.receive(drag, 0, moving), refusals.empty());
        EXPECT_EQ(desk.timedNotices(), refusals);
    }
}

TEST(AppStateDrops, ASwatchMovesWithinItsPaletteAndToAnother) {
    PaletteDesk desk;
    auto& from = desk.openWith(4);
    auto& to = desk.open();
    const auto was = from.swatches();
    from.receive(dragOf(from, 0), 3, false);
    EXPECT_THAT(from.swatches(), ElementsAre(was[1], was[2], was[0], was[3]));
    from.receive(dragOf(from, 2), 1, true);
    EXPECT_THAT(from.swatches(), ElementsAre(was[1], was[0], was[2], was[3]));

    from.renameSwatch(1, "Sea");
    EXPECT_TRUE(to.receive(dragOf(from, 1), 0, true));
    from.release(was[0].id);
    EXPECT_THAT(from.swatches(), ElementsAre(was[1], was[2], was[3]));
    EXPECT_THAT(to.names(), ElementsAre("Sea"));
    EXPECT_TRUE(to.receive(dragOf(from, 2), 0, false));
    EXPECT_THAT(to.colors(), ElementsAre(was[3].color, was[0].color));
    desk.undo.undo(to.place());
    desk.undo.undo(to.place());
    EXPECT_EQ(from.swatches().size(), 4U);
}

TEST(AppStateDrops, TextGivesItsColoursAndTheirNames) {
    PaletteDesk desk;
    auto& state = desk.open();
    EXPECT_EQ(state.receiveText("no colour here, sorry"), 0U);
    EXPECT_EQ(state.receiveText("#112233"), 1U);
    EXPECT_TRUE(desk.notices().empty());
    EXPECT_EQ(state.receiveText("--deep-sea: #001122;\n--sand: #FFEEDD;\n"), 2U);
    EXPECT_EQ(state.receiveText("#112233\nrgb(0, 17, 34)\n#fff"), 3U);
    EXPECT_THAT(state.names(), ElementsAre(std::nullopt, "Deep Sea", "Sand", std::nullopt));
    EXPECT_THAT(desk.notices(),
                ElementsAre("Added 2 to the palette", "Added 1 to the palette · 2 already there"));
}

} // namespace
} // namespace tintra
