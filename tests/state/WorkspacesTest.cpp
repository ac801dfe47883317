#include "tests/state/ModelRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

// The windows among themselves: opening, closing, saving side by side, quitting.

namespace tintra {
namespace {

using testing::ElementsAre;

constexpr auto kTwoSwatches = "GIMP Palette\nName: Garden\n#\n255 0 0\tRose\n0 128 0\tLeaf\n";

std::vector<std::string> hexes(const AppState& state) {
    std::vector<std::string> hexes;
    for (const auto& swatch : state.swatches())
        hexes.push_back(swatch.color.hexNoHash());
    return hexes;
}

TEST(Workspaces, WindowsAreNamedAndFoundInTheOrderOfTheirOpening) {
    Machine machine;
    ModelRun run(machine);
    auto& second = run.windows().openExtra();
    auto& third = run.windows().openExtra();
    EXPECT_EQ(run.primary().title(), "Untitled Palette");
    EXPECT_EQ(second.title(), "Untitled Palette 2");
    EXPECT_EQ(third.title(), "Untitled Palette 3");
    EXPECT_TRUE(run.closes(second));
    EXPECT_EQ(run.windows().openExtra().title(), "Untitled Palette 2");
    EXPECT_EQ(run.shown.size(), 4U) << "each window was asked for once";

    EXPECT_EQ(run.windows().front(), &run.window(2));
    run.windows().becameKey(run.primary().id());
    EXPECT_EQ(run.windows().front(), &run.primary());
    EXPECT_TRUE(run.closes(run.primary()));
    EXPECT_EQ(run.windows().front(), &run.window(1)) << "the one used before";
    EXPECT_EQ(run.windows().primary(), nullptr);
    EXPECT_TRUE(run.windows().openPrimary().swatches().empty());
}

TEST(Workspaces, ClosingAsksAboutUnsavedChangesAndForgetsTheWindow) {
    Machine machine;
    ModelRun run(machine);
    auto& extra = run.windows().openExtra();
    const auto id = extra.id();
    extra.addToPalette(color("C00000"), AppState::Duplicates::refuse);
    extra.toggleBenchedSwatch(0);
    run.pass();

    EXPECT_FALSE(run.closes(extra, {"Cancel"}));
    EXPECT_EQ(machine.desktop.dialogues.questions.back().text,
              "The palette has 1 swatch that is not saved to a file. It will be lost by closing "
              "the window.");
    EXPECT_EQ(run.count(), 2U);
    EXPECT_EQ(decodedWorkspaces(*machine.defaults().data(Workspaces::kExtrasKey))->size(), 1U);

    EXPECT_TRUE(run.closes(extra, {"Discard"}));
    EXPECT_EQ(run.count(), 1U);
    EXPECT_EQ(*machine.defaults().data(Workspaces::kExtrasKey), "[]");
    EXPECT_EQ(run.bench().benchColumns()[0].source.kind, BenchColumn::Kind::dormant);
    EXPECT_EQ(run.windows().undoTarget(id), nullptr);
    for (const auto& entry : run.models.undo().entries())
        EXPECT_NE(entry.window, id);
    EXPECT_TRUE(run.closes(run.primary())) << "nothing to ask about";
}

TEST(Workspaces, AThrowawayWindowLeavesNoRecord) {
    Machine machine;
    {
        ModelRun run(machine);
        run.windows().openThrowaway().addToPalette(color("123456"), AppState::Duplicates::refuse);
        run.pass();
        EXPECT_TRUE(run.quits({"Discard"}));
    }
    EXPECT_EQ(ModelRun(machine).count(), 1U);
}

TEST(Workspaces, QuittingEndsAtTheFirstCancel) {
    Machine machine;
    const auto file = machine.folder.write("garden.gpl", kTwoSwatches);
    ModelRun run(machine);
    run.open(run.primary(), file);
    run.primary().addToPalette(color("0000FF"), AppState::Duplicates::refuse);
    auto& second = run.windows().openExtra();
    second.addToPalette(color("C00000"), AppState::Duplicates::refuse);
    auto& third = run.windows().openExtra();
    third.addToPalette(color("00C000"), AppState::Duplicates::refuse);

    EXPECT_FALSE(run.quits({"Save", "Cancel"}));
    EXPECT_EQ(machine.desktop.dialogues.questions.size(), 2U) << "the third was not asked";
    EXPECT_FALSE(run.primary().paletteIsDirty()) << "what was saved stays saved";
    EXPECT_THAT(hexes(run.primary()), ElementsAre("FF0000", "008000", "0000FF"));
    EXPECT_THAT(hexes(second), ElementsAre("C00000"));
    EXPECT_TRUE(second.paletteIsDirty());

    // Work goes on, and the next attempt asks only those that are still unsaved.
    second.addToPalette(color("C0C0C0"), AppState::Duplicates::refuse);
    EXPECT_TRUE(run.quits({"Discard", "Discard"}));
    EXPECT_EQ(machine.desktop.dialogues.questions.size(), 4U);
}

TEST(Workspaces, TwoWindowsWithOneFile) {
    Machine machine;
    const auto file = machine.folder.write("garden.gpl", kTwoSwatches);
    ModelRun run(machine);
    auto& one = run.primary();
    auto& other = run.windows().openExtra();
    run.open(one, file);
    run.open(other, machine.folder / "../" / machine.folder.path().filename() / "garden.gpl");
    machine.notices();

    // The other shows it unchanged: it takes what is saved, and its Bench column follows.
    other.toggleBenchedSwatch(1);
    one.replaceInPalette(1, color("0000FF"));
    machine.notices();
    run.save(one);
    EXPECT_THAT(hexes(other), ElementsAre("FF0000", "0000FF"));
    EXPECT_FALSE(other.paletteIsDirty());
    EXPECT_THAT(machine.notices(), testing::Contains("Updated from another window’s save"));

    // Both have changes: the second to save is asked.
    one.replaceInPalette(0, color("111111"));
    other.replaceInPalette(0, color("222222"));
    run.save(one);
    EXPECT_THAT(hexes(other), ElementsAre("222222", "0000FF"));
    run.answer({"Cancel"});
    run.save(other);
    EXPECT_EQ(machine.desktop.dialogues.questions.back().title,
              "“garden” was saved from another window after this one loaded it.");
    EXPECT_TRUE(other.paletteIsDirty());
    run.answer({"Replace"});
    run.save(other);
    EXPECT_FALSE(other.paletteIsDirty());
    EXPECT_THAT(hexes(one), ElementsAre("222222", "0000FF")) << "now the first takes it";
}

TEST(Workspaces, TheSharedModelsFindSwatches) {
    Machine machine;
    const auto file = machine.folder.write("garden.gpl", kTwoSwatches);
    ModelRun run(machine);
    run.open(run.primary(), file);
    const OpenPalettes& palettes = run.windows();
    const auto leaf = run.primary().swatches()[1].id;
    EXPECT_EQ(palettes.swatch(run.primary().id(), leaf)->origin.index, 1U);
    EXPECT_EQ(palettes.absence(run.primary().id()), OpenPalettes::Absence::gone);
    EXPECT_EQ(palettes.absence(Uuid{}), OpenPalettes::Absence::away);

    struct Row {
        const char *name, *hex;
        std::size_t index;
        bool isFound;
    };
    for (const auto& row : {Row{"garden", "008000", 1, true}, Row{"garden", "008000", 0, false},
                            Row{"garden", "008000", 2, false}, Row{"park", "008000", 1, false}})
        EXPECT_EQ(palettes.swatch(row.name, row.index, color(row.hex)).has_value(), row.isFound)
            << row.name << ' ' << row.index;

    run.primary().addToPalette(color("01020380"), AppState::Duplicates::refuse);
    EXPECT_TRUE(palettes.holds(color("010203"))) << "as it went to the Bench";
    EXPECT_FALSE(palettes.holds(color("01020381")));
    EXPECT_TRUE(palettes.swatch("garden", 2, color("010203")).has_value());
}

} // namespace
} // namespace tintra
