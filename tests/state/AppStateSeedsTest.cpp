#include "state/CoalescingKeys.h"
#include "tests/state/PaletteDesk.h"

#include <gtest/gtest.h>

namespace tintra {
namespace {

using Role = AppState::SeedRole;

const WashColor kRed{1, 0, 0, 1}, kLime{0, 1, 0, 1}, kWhite{1, 1, 1, 1};

TEST(AppStateSeeds, TheLastSeedFollowsUntilItIsChosen) {
    PaletteDesk desk;
    auto& state = desk.open();
    for (const auto& first : {kRed, kWhite, WashColor{0, 0, 0, 0.5}}) {
        state.setSeed(Role::first, first, coalescing::seed("first"));
        EXPECT_GT(std::abs(state.last().oklab().L - first.oklab().L), 0.2);
        EXPECT_EQ(state.last().a, first.a);
    }
    EXPECT_EQ(desk.undo.entries().size(), 1U);
    state.receiveSeed({kLime, {}, DragOfBand{}}, Role::last);
    state.pickFirst(kWhite);
    state.swapSeeds();
    EXPECT_EQ(state.seeds().value(), (Seeds{kLime, kWhite, true}));
    state.clearSeeds();
    state.clearSeeds();
    EXPECT_EQ(desk.undo.entries().size(), 5U) << "clearing twice changes nothing";
    desk.undo.undo(state.place());
    EXPECT_EQ(state.seeds().value(), (Seeds{kLime, kWhite, true}));
    EXPECT_FALSE(AppState::storedSeeds(kRed, AppState::defaultingLast(kRed)).lastIsExplicit);
}

TEST(AppStateSeeds, BandsFollowWhatTheyAreMadeOf) {
    PaletteDesk desk;
    auto& state = desk.open();
    state.pickForEmpty(kRed);
    EXPECT_TRUE(state.bands().empty());
    EXPECT_EQ(state.colors(), std::vector{kRed});
    state.mode = HarmonyMode::ramp;
    state.pickForEmpty(kLime);
    for (const auto& [steps, count] : {std::pair{-7, 2U}, {3, 3U}, {1000000000, 32U}}) {
        state.steps = steps;
        ASSERT_EQ(state.bands().size(), 1U);
        EXPECT_EQ(state.bands()[0].size(), count);
        EXPECT_EQ(state.bands()[0].front(), kLime);
    }
    state.mode = HarmonyMode::triadic;
    state.shadesPerAnchor = 4;
    state.restoreSeeds({kRed, kWhite, true});
    state.addHarmonyToPalette(); // three bands that all end in white, and red is there
    EXPECT_EQ(state.swatches().size(), 10U);
    EXPECT_EQ(desk.notices(), std::vector<std::string>{"Added 9 to the palette · 3 already there"});
}

} // namespace
} // namespace tintra
