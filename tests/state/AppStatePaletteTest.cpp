#include "state/SwatchName.h"
#include "tests/state/PaletteDesk.h"

#include <gmock/gmock.h>

namespace tintra {
namespace {

using testing::ElementsAre;
using testing::Pair;
using Duplicates = AppState::Duplicates;
using Change = std::function<void(AppState&)>;

const WashColor kNew{1, 1, 1, 1};

TEST(AppStatePalette, TheLastPlaceIsTakenAndNoFurtherOne) {
    const std::vector<Change> adds{
        [](auto& s) { s.addToPalette(kNew, Duplicates::allow); },
        [](auto& s) { s.addAllToPalette(std::array{PaletteDesk::colour(300)}); },
        [](auto& s) { s.addBlankSwatch(false); },
        [](auto& s) { s.duplicateSwatch(3); },
        [](auto& s) {
            s.receive(Drag{{0, 1, 0, 1}, {}, {}}, 0, false);
        },
        [](auto& s) { s.quickPick(PaletteDesk::colour(301), AppState::Modifiers{.shift = true}); },
    };
    for (std::size_t i = 0; i < adds.size(); ++i) {
        SCOPED_TRACE(i);
        PaletteDesk desk;
        auto& state = desk.openWith(255);
        adds[i](state);
        EXPECT_EQ(state.swatches().size(), 256U);
        desk.notices();
        adds[(i + 1) % adds.size()](state);
        EXPECT_EQ(state.swatches().size(), 256U);
        EXPECT_EQ(desk.undo.entries().size(), 1U);
        EXPECT_THAT(desk.notices(), ElementsAre("The palette is full at 256"));
    }
}

TEST(AppStatePalette, ADuplicateIsWhatHasTheSameBytes) {
    using Notices = std::vector<std::pair<std::string, double>>;
    const std::vector<std::tuple<WashColor, WashColor, Notices>> rows{
        {{0.5, 0, 0, 1}, {0.501, 0, 0, 1}, {{"#800000 is already in this palette", 1.4}}},
        {{0, 0, 0, 1}, {0, 0, 0, 0.9985}, {{"#000000FF is already in this palette", 1.4}}},
        {{0, 0, 0, 1}, {0, 0, 0, 0.999}, {{"#000000 is already in this palette", 1.4}}},
        {{1, 0, 0, 1}, {1.25, -0.5, 0, 1}, {{"#FF0000 is already in this palette", 1.4}}},
        {{0, 0, 0, 0.5}, {0, 0, 0, 0.505}, {}},
    };
    for (const auto& [held, offered, notices] : rows) {
        PaletteDesk desk;
        auto& state = desk.open();
        state.addToPalette(held, Duplicates::refuse);
        state.addToPalette({0, 0, 1, 1}, Duplicates::refuse);
        EXPECT_EQ(state.addToPalette(offered, Duplicates::refuse), notices.empty());
        EXPECT_EQ(state.selectedSwatch.value(), notices.empty() ? 2U : 0U);
        EXPECT_EQ(desk.timedNotices(), notices);
    }
}

TEST(AppStatePalette, ABatchSkipsWhatIsThereAndCounts) {
    const std::vector<std::tuple<std::size_t, std::vector<std::size_t>, const char*, std::size_t>>
        rows{
            {2, {5}, "Added 1 to the palette", 3},
            {2, {5, 1, 5, 6}, "Added 2 to the palette · 2 already there", 4},
            {2, {0, 1, 1}, "All 3 already in this palette", 2},
            {254, {300, 301, 302}, "The palette is full at 256", 256},
            {254, {300, 0, 301}, "Added 2 to the palette · 1 already there", 256},
        };
    for (const auto& [held, offered, notice, after] : rows) {
        PaletteDesk desk;
        auto& state = desk.openWith(held);
        std::vector<WashColor> colours;
        for (const auto i : offered)
            colours.push_back(PaletteDesk::colour(i));
        state.addAllToPalette(colours, std::array{std::optional<std::string>(" one ")});
        EXPECT_EQ(state.swatches().size(), after);
        EXPECT_EQ(state.names().back() == "one", after == held + 1);
        EXPECT_EQ(desk.undo.entries().size(), after > held ? 1U : 0U);
        EXPECT_THAT(desk.timedNotices(), ElementsAre(Pair(notice, 2.8)));
    }
}

TEST(AppStatePalette, EveryChangeIsOneStepThatUndoTakesBackWhole) {
    const std::vector<Change> changes{
        [](auto& s) { s.addToPalette(kNew, Duplicates::refuse, "White"); },
        [](auto& s) { s.duplicateSwatch(0); },
        [](auto& s) { s.removeSelectedSwatch(); },
        [](auto& s) { s.moveSwatch(3, 0); },
        [](auto& s) { s.moveSwatch(0, 99); },
        [](auto& s) { s.renameSwatch(1, "Sea"); },
        [](auto& s) {
            for (const double red : {0.3, 0.2, 0.1})
                s.replaceInPalette(0, {red, 1, 1, 1}, "r");
        },
        [](auto& s) { s.replacePalette(std::array{kNew}, {}); },
        [](auto& s) { s.emptyPalette(); },
    };
    for (std::size_t i = 0; i < changes.size(); ++i) {
        SCOPED_TRACE(i);
        PaletteDesk desk;
        auto& state = desk.openWith(4);
        const auto before = state.swatches();
        changes[i](state);
        const auto after = state.swatches();
        EXPECT_NE(after, before);
        EXPECT_EQ(desk.undo.entries().size(), 1U);
        desk.undo.undo(state.place());
        EXPECT_EQ(state.swatches(), before);
        EXPECT_LT(state.selectedSwatch.value().value_or(0), 4U);
        desk.undo.redo(state.place());
        EXPECT_EQ(state.swatches(), after);
    }
}

TEST(AppStatePalette, WhatChangesNothingLeavesNoTrace) {
    PaletteDesk desk;
    auto& state = desk.openWith(3);
    state.renameSwatch(0, " \t");
    state.replaceInPalette(0, state.colors()[0]);
    state.replacePalette(state.colors(), state.names());
    state.moveSwatch(2, 99);
    state.removeSwatch(3);
    state.duplicateSwatch(3);
    state.moveSwatch(3, 0);
    state.editSwatch(3);
    state.addAllToPalette({});
    EXPECT_EQ(state.customPaletteVersion().value(), 3U);
    EXPECT_TRUE(desk.undo.entries().empty());
    EXPECT_TRUE(desk.notices().empty());
}

TEST(AppStatePalette, SelectionAndEditorStayWithTheirSwatch) {
    PaletteDesk desk;
    auto& state = desk.openWith(4);
    state.editSwatch(2);
    const auto edited = state.swatches()[2];
    state.moveSwatch(2, 0);
    state.moveSwatch(3, 0);
    EXPECT_EQ(state.selectedSwatch.value(), 1U);
    state.editorBuffer = AppState::EditorBuffer{edited.id, kNew};
    state.renameSwatch(1, "An edit that has begun stays");
    state.editSwatch(3);
    EXPECT_EQ(state.colors()[1], kNew) << "an edit is applied when another one begins";
    state.editSwatch(1);
    desk.undo.undo(state.place());
    EXPECT_EQ(state.editorBuffer.value()->color, edited.color) << "an untouched editor follows";
    state.removeSelectedSwatch();
    EXPECT_EQ(state.selectedSwatch.value(), 1U) << "the next one takes its place";
    EXPECT_EQ(state.editorBuffer.value()->swatchID, state.swatches()[1].id);
}

TEST(AppStatePalette, WhatUndoBringsBackIsCleanOnlyUntilASave) {
    PaletteDesk desk;
    auto& state = desk.open();
    PaletteContent other{
        {{{}, kNew, {}}}, PaletteAttachment{"Sea", "/p/Sea.ase"}, false, 0, {3, {}}};
    state.exchangePalette(other);
    EXPECT_FALSE(state.paletteIsDirty().value());
    EXPECT_EQ(state.title(), "Sea");
    other.saves = 1;
    other.loadedVersion = {4, {}};
    state.exchangePalette(other);
    EXPECT_TRUE(state.paletteIsDirty().value()) << "no longer what the file holds";
    EXPECT_EQ(state.loadedVersion().saves, 3U) << "the same file stays as it is known";
    desk.desktop.dialogues.buttons = {"Cancel", "Discard"};
    state.clearPalette();
    EXPECT_EQ(state.title(), "Sea");
    state.clearPalette();
    EXPECT_EQ(state.title(), "Untitled Palette");
    EXPECT_FALSE(state.paletteIsDirty().value());
}

TEST(AppStatePalette, UntitledNamesAreTheFirstFreeAndGivenOnesTidied) {
    const std::vector<std::string> taken{"Untitled Palette", "Untitled Palette 3"};
    EXPECT_EQ(freeUntitledName(taken), "Untitled Palette 2");
    const std::string longest(kLongestName * 2, '\xC3');
    EXPECT_EQ(swatchNameFrom("  Deep\tsea\x01!\n"), "Deep sea !");
    EXPECT_EQ(swatchNameFrom("\xC2\xA0\r\n"), std::nullopt);
    EXPECT_EQ(swatchNameFrom(longest)->size(), kLongestName * 3) << "as replacement characters";
}

} // namespace
} // namespace tintra
