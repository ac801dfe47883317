#include "tests/state/ModelRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

// Everything put together, from one run of the program to the next.

namespace tintra {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Kind = BenchColumn::Kind;

constexpr auto kNoDuplicates = AppState::Duplicates::refuse;

std::vector<StoredWorkspace> stored(ModelRun& run) {
    std::vector<StoredWorkspace> records;
    for (std::size_t i = 0; i < run.count(); ++i)
        records.push_back(run.window(i).currentStored());
    return records;
}

/// Work in every model: two palettes, a mix on the Bench, a pair in Contrast.
void work(ModelRun& run) {
    auto& first = run.primary();
    first.addToPalette(color("C00000"), kNoDuplicates, "Brick");
    first.addToPalette(color("0000C080"), kNoDuplicates);
    first.setSeed(AppState::SeedRole::last, color("00FF00"));
    first.frame = StoredFrame{10, 20, 640, 480};
    first.toggleBenchedSwatch(0);
    first.toggleBenchedSwatch(1);
    first.sendAllToContrast();
    auto& second = run.windows().openExtra();
    second.mode = HarmonyMode::triadic;
    second.steps = 7;
    second.isCollapsed = true;
    second.addToPalette(color("00C000"), kNoDuplicates);
    run.windows().openExtra().addToPalette(color("C0C000"), kNoDuplicates);
    auto& bench = run.bench();
    bench.toggleWell(bench.benchColumns()[0].id, bench.benchColumns()[1].id);
    bench.updateWell(bench.benchWells()[0].id, Bench::WellField::ratio, 0.25);
    bench.isWindowOpen = true;
    run.models.contrast().mode = ContrastBoard::Mode::ladder;
    run.windows().isLibraryWindowOpen = true;
}

/// A run with that work, quit without saving it to files.
void workAndQuit(Machine& machine) {
    ModelRun run(machine);
    work(run);
    EXPECT_TRUE(run.quits({"Discard", "Discard", "Discard"}));
    machine.notices();
}

TEST(Models, AResumedStartBringsEverythingBackAndWritesNothing) {
    Machine machine;
    std::vector<StoredWorkspace> before;
    {
        ModelRun run(machine);
        EXPECT_EQ(run.opening, Models::Opening{});
        work(run);
        EXPECT_TRUE(run.quits({"Discard", "Discard", "Discard"}));
        before = stored(run);
        // What windows do as they go is no part of it.
        run.bench().isWindowOpen = false;
        run.windows().isLibraryWindowOpen = false;
        run.pass();
    }
    machine.notices();
    const auto writes = machine.defaults().writes;

    ModelRun run(machine);
    run.pass();
    EXPECT_EQ(stored(run), before);
    EXPECT_EQ(run.opening, (Models::Opening{true, true, false}));
    EXPECT_THAT(run.shown, ElementsAre(run.window(0).id(), run.window(1).id(), run.window(2).id()));
    EXPECT_EQ(run.windows().front(), &run.primary());
    ASSERT_EQ(run.bench().benchColumns().size(), 2U);
    for (const auto& column : run.bench().benchColumns())
        EXPECT_EQ(column.source.kind, Kind::paletteSwatch) << "its palette is open again";
    EXPECT_EQ(run.bench().benchWells().at(0).ratio, 0.25);
    EXPECT_EQ(run.models.contrast().entries().size(), 2U);
    EXPECT_EQ(run.models.contrast().mode.value(), ContrastBoard::Mode::ladder);
    EXPECT_FALSE(run.models.undo().canUndo());
    EXPECT_EQ(machine.defaults().writes, writes);
    EXPECT_THAT(machine.notices(), IsEmpty());
    EXPECT_THAT(machine.desktop.log.lines, IsEmpty());
}

TEST(Models, ACleanStartKeepsTheOldRecordsUntilSomethingIsMade) {
    Machine machine;
    workAndQuit(machine);
    machine.defaults().records["TintraPreferences"] = R"({"opensWith": "clean"})";
    const auto records = machine.defaults().records;
    {
        ModelRun run(machine);
        EXPECT_EQ(run.opening, Models::Opening{});
        EXPECT_EQ(run.count(), 1U);
        EXPECT_TRUE(run.primary().swatches().empty());
        EXPECT_TRUE(run.bench().benchColumns().empty());
        EXPECT_TRUE(run.models.contrast().entries().empty());
        run.primary().frame = StoredFrame{1, 2, 300, 400};
        run.bench().isWindowOpen = true;
        run.windows().isLibraryWindowOpen = true;
        EXPECT_TRUE(run.closes(run.windows().openExtra()));
        run.pass();
        EXPECT_TRUE(run.quits());
    }
    EXPECT_EQ(machine.defaults().records, records);
    {
        ModelRun run(machine);
        run.primary().addToPalette(color("ABCDEF"), kNoDuplicates);
        EXPECT_TRUE(run.quits({"Discard"}));
    }
    EXPECT_EQ(machine.defaults().records["TintraBench"], records.at("TintraBench"));
    machine.defaults().records.erase("TintraPreferences");
    ModelRun run(machine);
    EXPECT_EQ(run.count(), 1U);
    EXPECT_EQ(run.primary().swatches()[0].color, color("ABCDEF"));
}

TEST(Models, WithoutItsPrimaryWindowARunResumesWithTheFirstOther) {
    Machine machine;
    Uuid second;
    {
        ModelRun run(machine);
        work(run);
        second = run.window(1).id();
        EXPECT_TRUE(run.closes(run.primary(), {"Discard"}));
        EXPECT_TRUE(run.quits({"Discard", "Discard"}));
    }
    for (int start = 0; start < 2; ++start) { // the second time from records of the first
        ModelRun run(machine);
        ASSERT_EQ(run.count(), 2U);
        EXPECT_TRUE(run.window(0).isPrimary());
        EXPECT_EQ(run.window(0).id(), second);
        EXPECT_EQ(run.window(0).mode.value(), HarmonyMode::triadic);
        EXPECT_EQ(run.window(1).swatches()[0].color, color("C0C000"));
        EXPECT_EQ(run.bench().benchColumns()[0].source.kind, Kind::dormant);
        run.pass();
    }
    {
        ModelRun run(machine);
        run.closes(run.window(1), {"Discard"});
        run.closes(run.window(0), {"Discard"});
        EXPECT_TRUE(run.quits());
    }
    const ModelRun run(machine);
    EXPECT_THAT(run.shown, IsEmpty()) << "the Library and the Bench are open, and no palette was";
}

TEST(Models, ADamagedRecordIsSetAsideAndDefaultsStandIn) {
    for (const auto* key : {"TintraPreferences", "TintraLaunchState", "TintraWorkspace",
                            "TintraExtraWorkspaces", "TintraBench", "TintraContrast"}) {
        for (const auto* damage : {"", "{\"first\":", "[1, {}]", "7", "\xff\xfe"}) {
            SCOPED_TRACE(std::string(key) + ": " + damage);
            Machine machine;
            workAndQuit(machine);
            machine.defaults().records[key] = damage;
            ModelRun run(machine);
            EXPECT_THAT(machine.defaults().asideKeys, ElementsAre(key));
            EXPECT_EQ(machine.desktop.log.lines.size(), 1U);
            EXPECT_THAT(machine.notices(), IsEmpty());
            const bool isPrimary = key == std::string("TintraWorkspace");
            EXPECT_EQ(run.primary().swatches().size(), isPrimary ? 0U : 2U);
            EXPECT_EQ(run.count(), key == std::string("TintraExtraWorkspaces") ? 1U : 3U);
        }
    }
}

TEST(Models, OfAListThatIsPartlyDamagedTheRestIsKept) {
    Machine machine;
    workAndQuit(machine);
    auto& list = machine.defaults().records[std::string(Workspaces::kExtrasKey)];
    list.insert(1, "{\"steps\":false},");
    ModelRun run(machine);
    EXPECT_EQ(run.count(), 3U);
    EXPECT_THAT(machine.defaults().asideKeys, ElementsAre(Workspaces::kExtrasKey));
    run.pass();
    EXPECT_EQ(decodedWorkspaces(*machine.defaults().data(Workspaces::kExtrasKey))->size(), 2U);
}

TEST(Models, SettingsReachWhatTheyGovern) {
    Machine machine;
    machine.folder.write("sea.gpl", "GIMP Palette\n#\n1 2 3\tDeep\n");
    {
        ModelRun run(machine);
        auto& preferences = run.models.preferences();
        preferences.rescanOnLaunch = false;
        PaletteLocation desk;
        desk.path = machine.folder.path();
        preferences.paletteLocations = {desk};
        preferences.swatchBackdrop = SwatchBackdrop::black;
        run.pass();
        EXPECT_EQ(run.models.store().available().size(), 1U);
        EXPECT_EQ(preferences.scanGeneration.value(), run.models.store().scanGeneration());
    }
    ModelRun run(machine);
    run.pass();
    EXPECT_EQ((WashColor{1, 1, 1, 0.5}).overCheckerboard().hexNoHash(), "808080");
    run.models.setThemeSurfaces([] { return ThemeSurfaces{{1, 0, 0}, {}}; });
    run.models.preferences().swatchBackdrop = SwatchBackdrop::ground;
    EXPECT_EQ((WashColor{0, 0, 0, 0}).overCheckerboard().hexNoHash(), "FF0000");
    EXPECT_TRUE(run.models.store().available().empty()) << "nobody has looked yet";
    run.windows().isLibraryWindowOpen = true;
    run.pass();
    EXPECT_EQ(run.models.store().available().size(), 1U);
}

TEST(Models, WorkThatCannotBeKeptIsSaidOnceUntilItCanBe) {
    Machine machine;
    ModelRun run(machine);
    machine.defaults().failing("TintraWorkspace", {"No space left on device"});
    machine.defaults().failing("TintraPreferences", {"No space left on device"});
    EXPECT_THAT(machine.notices(),
                ElementsAre("Your work could not be kept: No space left on device"));
    machine.defaults().recovered();
    machine.defaults().failing("TintraWorkspace", {"Read-only file system"});
    EXPECT_THAT(machine.notices(),
                ElementsAre("Your work could not be kept: Read-only file system"));
}

TEST(Models, ABenchColumnFollowsItsSwatchThroughEverything) {
    Machine machine;
    const auto file = machine.folder / "links.gpl";
    const auto column = [](ModelRun& run) { return run.bench().benchColumns().at(0); };
    Uuid id;
    {
        ModelRun run(machine);
        auto& palette = run.windows().openExtra();
        id = palette.id();
        palette.addToPalette(color("C00000"), kNoDuplicates, "Brick");
        palette.addToPalette(color("00C000"), kNoDuplicates);
        palette.toggleBenchedSwatch(0);
        palette.renameSwatch(0, "Rust");
        EXPECT_EQ(run.bench().name(column(run)), "Rust");
        palette.replaceInPalette(0, color("B04020"));
        palette.moveSwatch(0, 1);
        EXPECT_EQ(column(run).color, color("B04020"));
        EXPECT_EQ(column(run).source.origin->index, 1U);

        palette.removeSwatch(1);
        EXPECT_EQ(column(run).color, color("B04020"));
        EXPECT_EQ(run.bench().name(column(run)), "Rust") << "the name is kept";
        EXPECT_NE(column(run).source.kind, Kind::paletteSwatch);
        run.models.undo().undo({});
        EXPECT_EQ(column(run).source.kind, Kind::paletteSwatch);

        run.saveTo(palette, file);
        EXPECT_EQ(column(run).source.origin->paletteName, "links");
        run.pass();
        EXPECT_TRUE(run.quits());
    }
    {
        ModelRun run(machine);
        EXPECT_EQ(column(run).source.kind, Kind::paletteSwatch);
        auto& palette = *run.windows().state(id);
        palette.replaceInPalette(1, color("A05030"));
        EXPECT_EQ(column(run).color, color("A05030"));
        EXPECT_TRUE(run.closes(palette, {"Discard"}));
        EXPECT_EQ(column(run).source.kind, Kind::dormant);
        EXPECT_EQ(run.bench().badgeText(column(run)), "LINKS");
        EXPECT_EQ(column(run).color, color("A05030")) << "as last seen";
        EXPECT_TRUE(run.quits());
    }
    ModelRun run(machine);
    EXPECT_EQ(column(run).source.kind, Kind::dormant);
    EXPECT_EQ(run.bench().describeOrigin(column(run), {}), "from links");
}

TEST(Models, AFileThatChangedBetweenRunsIsAskedAbout) {
    constexpr auto kReds = "GIMP Palette\nName: Reds\n#\n255 0 0 Red\n";
    for (const bool changes : {false, true}) {
        Machine machine;
        const auto file = machine.folder.write("Reds.gpl", kReds);
        {
            ModelRun run(machine);
            run.open(run.primary(), file);
            run.save(run.primary()); // writes the same again: the record must know of that
            EXPECT_TRUE(run.quits());
        }
        if (changes) machine.folder.write("Reds.gpl", std::string(kReds) + "250 0 0 Another\n");
        ModelRun run(machine);
        run.primary().addToPalette({0, 0, 1, 1}, AppState::Duplicates::refuse);
        machine.desktop.dialogues.questions.clear();
        run.answer({"Cancel"});
        run.save(run.primary());
        EXPECT_EQ(machine.desktop.dialogues.questions.size(), changes ? 1U : 0U);
        EXPECT_EQ(machine.folder.content("Reds.gpl").find("Another") != std::string::npos, changes);
    }
}

} // namespace
} // namespace tintra
