#include "state/StoredWorkspace.h"
#include "tests/state/FilesDesk.h"

#include <gtest/gtest.h>

namespace tintra {
namespace {

constexpr const char* kKey = "TintraWorkspace";

TEST(AppStatePersistence, WritesOnceAfterARunOfChanges) {
    FilesDesk desk;
    desk.desktop.loop.pass(1);
    auto& writes = desk.desktop.defaults.writes[kKey];
    const int before = writes;
    for (int i = 0; i < 10; ++i) {
        FilesDesk::add(desk.window(), i / 10.0);
        desk.desktop.loop.pass(0.029);
    }
    EXPECT_EQ(writes, before);
    desk.desktop.loop.pass(0.28);
    EXPECT_EQ(writes, before + 1);
    EXPECT_EQ(decodedWorkspace(desk.desktop.defaults.records[kKey])->customPalette.size(), 10U);
    desk.window().isCollapsed = true;
    desk.window().flushPersist();
    EXPECT_EQ(writes, before + 2);
    desk.window().flushPersist();
    desk.desktop.loop.pass(1);
    EXPECT_EQ(writes, before + 2);
}

TEST(AppStatePersistence, EveryFieldComesBack) {
    StoredWorkspace stored;
    stored.first = {0.1, 0.2, 0.3, 1};
    stored.last = {0.4, 0.5, 0.6, 0.5};
    stored.stepCount = 7;
    stored.blendSpace = BlendSpace::okLab;
    stored.mode = HarmonyMode::square;
    stored.shadesPerAnchor = 3;
    stored.customPalette = {{1, 0, 0, 1}, {0, 0, 1, 0.25}};
    stored.customPaletteNames = {"Rose", ""};
    stored.paletteIsDirty = true;
    stored.currentPaletteName = "Roses";
    stored.currentPalettePath = "/nowhere/Roses.ase";
    stored.isCollapsed = true;
    stored.frame = StoredFrame{1, 2, 300, 400};
    stored.modeSizes = {{HarmonyMode::ramp, {640, 480}}};
    stored.compactOrientation = CompactOrientation::vertical;
    stored.selectedSwatch = 1;
    FilesDesk desk;
    auto& state = desk.window();
    stored.id = state.id();
    stored.swatchIDs = {desk.desktop.chance.uuid(), desk.desktop.chance.uuid()};
    desk.desktop.loop.pass(1);
    const auto writes = desk.desktop.defaults.writes;
    state.apply(stored);
    EXPECT_EQ(state.currentStored(), stored);
    EXPECT_EQ(state.pendingFrame.value(), stored.frame);
    desk.desktop.loop.pass(1);
    EXPECT_EQ(desk.desktop.defaults.writes, writes) << "what was read is not written again";
    EXPECT_EQ(desk.notices(), Texts{});

    auto& other = desk.another();
    FilesDesk::add(other, 1);
    other.applyStored(stored, false);
    EXPECT_EQ(other.mode.value(), HarmonyMode::square);
    EXPECT_EQ(other.swatches().size(), 1U);
    EXPECT_NE(other.first(), stored.first);
}

TEST(AppStatePersistence, SwatchesOfOneIdentifierBecomeTwo) {
    FilesDesk desk;
    auto& state = desk.window();
    StoredWorkspace stored;
    stored.customPalette = {{1, 0, 0, 1}, {0, 1, 0, 1}, {0, 0, 1, 1}};
    stored.swatchIDs = {state.id(), state.id()};
    stored.selectedSwatch = 3;
    state.apply(stored);
    EXPECT_EQ(state.swatches()[0].id, state.id());
    EXPECT_NE(state.swatches()[1].id, state.id());
    EXPECT_NE(state.swatches()[1].id, state.swatches()[2].id);
    EXPECT_FALSE(state.selectedSwatch.value());
}

TEST(AppStatePersistence, SetsADamagedRecordAside) {
    for (const auto* const record : {"{\"first\":", "[1]", "\xff"}) {
        FilesDesk desk;
        desk.desktop.loop.pass(1);
        desk.desktop.defaults.asideKeys.clear();
        desk.desktop.defaults.records[kKey] = record;
        desk.window().restore();
        ASSERT_EQ(desk.desktop.log.lines.size(), 1U);
        EXPECT_TRUE(desk.desktop.log.lines[0].starts_with(
            "Tintra: could not decode the saved workspace: "));
        EXPECT_EQ(desk.desktop.defaults.asideKeys, Texts{kKey});
        EXPECT_TRUE(desk.window().swatches().empty());
        EXPECT_EQ(desk.notices(), Texts{});
    }
}

} // namespace
} // namespace tintra
