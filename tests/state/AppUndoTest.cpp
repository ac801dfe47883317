#include "state/AppUndo.h"

#include "tests/state/FakePalettes.h"
#include "tests/support/FakeDesktop.h"

#include <gtest/gtest.h>

namespace tintra {
namespace {

constexpr WashColor kRed{1, 0, 0, 1}, kGreen{0, 1, 0, 1};

struct FakeBench final : BenchUndoTarget {
    BenchContent held;
    BenchContent exchangeContent(BenchContent other) override {
        return std::exchange(held, std::move(other));
    }
};

class AppUndoTest : public ::testing::Test {
protected:
    AppUndoTest() {
        undo.attach(palettes, bench);
        window().held = {{Uuid{{1}}, kRed, {}}, {Uuid{{2}}, kGreen, {}}, {Uuid{{3}}, kRed, {}}};
        bench.held.columns = {{Uuid{{5}}, kRed, {}, {}}, {Uuid{{6}}, kGreen, {}, {}}};
        bench.held.wells = {{Uuid{{7}}, Uuid{{5}}, Uuid{{6}}}};
    }

    FakeWindow& window() { return palettes.open[id]; }
    std::string name() { return window().held.front().name.value_or(""); }
    void rename(std::string to, const std::string& key = {}) {
        undo.checkpointPalette(id, window().content(), key);
        window().held.front().name = std::move(to);
    }
    void move(std::size_t from, std::size_t to) {
        window().exchangeMove(from, to);
        if (!undo.extendTopToMove(id, from, to)) undo.appendMove(id, from, to);
    }
    auto state() { return std::tuple(window().held, window().seeds, bench.held); }

    const Uuid id{{9}}, other{{8}};
    const ToastPlace place{ToastWindow::palette, id};
    FakeDesktop desktop{{}};
    FakePalettes palettes;
    FakeBench bench;
    AppUndo undo{desktop.services};
};

TEST_F(AppUndoTest, KeepsTheLastThirtyChanges) {
    for (int i = 1; i <= 31; ++i)
        rename(std::to_string(i));
    for (int i = 0; i < 40; ++i)
        undo.undo(place);
    EXPECT_EQ(name(), "1");
    for (int i = 0; i < 40; ++i)
        undo.redo(place);
    EXPECT_EQ(name(), "31");
}

TEST_F(AppUndoTest, ARunOfOneKeyIsOneStep) {
    using Row = std::tuple<double, const char*, Uuid, std::size_t>;
    for (const auto& [pause, key, of, steps] : {Row{1.5, "a", id, 1},
                                                {2.0, "a", id, 2},
                                                {2.5, "a", id, 2},
                                                {0.1, "b", id, 2},
                                                {0.1, "", id, 2},
                                                {0.1, "a", other, 2}}) {
        AppUndo fresh(desktop.services);
        fresh.checkpointPalette(id, {}, "a");
        desktop.loop.pass(pause);
        fresh.checkpointPalette(of, {}, key);
        EXPECT_EQ(fresh.entries().size(), steps) << pause << key;
        fresh.checkpointBench({}, key);
        EXPECT_EQ(fresh.entries().size(), steps + 1) << "another kind";
    }
    // Every change renews the time, so that a long run stays one step, and goes back to its start.
    for (int i = 0; i < 5; ++i, desktop.loop.pass(1.9))
        rename(std::to_string(i), "run");
    undo.undo(place);
    EXPECT_EQ(name(), "");
}

TEST_F(AppUndoTest, AGestureIsOneStepAKind) {
    for (int i = 0; i < 2; ++i) {
        undo.beginGesture();
        rename("a");
        desktop.loop.pass(10);
        rename("b");
        undo.endGesture();
    }
    EXPECT_EQ(undo.entries().size(), 2U);
}

TEST_F(AppUndoTest, AMoveIsExtendedWithinItsGestureAndGoesWhenItEndsAtItsBeginning) {
    const auto before = state();
    undo.beginGesture();
    move(0, 1);
    move(1, 2);
    const auto after = state();
    undo.undo(place);
    EXPECT_EQ(state(), before);
    undo.redo(place);
    EXPECT_EQ(state(), after);

    move(2, 1); // no longer the same step
    move(1, 2);
    EXPECT_EQ(undo.entries().size(), 1U);
    undo.endGesture();
    move(2, 1);
    move(1, 0);
    EXPECT_EQ(undo.entries().size(), 3U);
}

TEST_F(AppUndoTest, UndoAndRedoExchangeAndSayWhatTheyDid) {
    undo.undo(place);
    undo.redo(place);
    EXPECT_TRUE(desktop.toasts.shown.empty());

    struct Step {
        std::string name, verb;
        std::function<void()> change;
    };
    const std::vector<Step> steps{
        {"Palette Change", "palette change", [&] { rename("a"); }},
        {"Colour Change", "colour change",
         [&] {
             undo.checkpointPalette(id, window().content(), {});
             window().held.front().color = kGreen;
         }},
        {"Move", "palette change", [&] { move(0, 2); }},
        {"Seed Change", "seed change",
         [&] {
             undo.checkpointSeeds(id, std::exchange(window().seeds, {kRed, kGreen}), {});
         }},
        {"Bench Change", "Bench change",
         [&] {
             undo.checkpointBench(std::exchange(bench.held, {bench.held.columns, {}}), {});
         }},
        {"Clearing the Bench", "clearing the Bench",
         [&] { undo.checkpointBench(std::exchange(bench.held, {}), {}, true); }},
    };
    std::vector states{state()};
    for (const auto& step : steps) {
        step.change();
        states.push_back(state());
    }
    for (int round = 0; round < 2; ++round) {
        for (auto i = steps.size(); i-- > 0;) {
            EXPECT_EQ(undo.title(), "Undo " + steps[i].name);
            undo.undo(place);
            EXPECT_EQ(state(), states[i]) << steps[i].name;
            EXPECT_EQ(desktop.toasts.taken(), std::vector{"Undid " + steps[i].verb});
        }
        EXPECT_EQ(undo.title(), "Undo");
        for (std::size_t i = 0; i < steps.size(); ++i) {
            EXPECT_EQ(undo.redoTitle(), "Redo " + steps[i].name);
            undo.redo(place);
            EXPECT_EQ(state(), states[i + 1]) << steps[i].name;
            EXPECT_EQ(desktop.toasts.taken(), std::vector{"Redid " + steps[i].verb});
        }
        EXPECT_EQ(undo.redoTitle(), "Redo");
    }
    undo.undo(place);
    const auto shown = desktop.toasts.shown.back();
    EXPECT_EQ(shown.seconds, 1.4);
    EXPECT_EQ(shown.window, place);
    shown.action->perform(); // the way back
    EXPECT_EQ(state(), states.back());
}

TEST_F(AppUndoTest, AChangeAfterAnUndoEmptiesTheRedoList) {
    rename("a", "key");
    rename("b", "other");
    undo.undo(place);
    EXPECT_TRUE(undo.canRedo());
    rename("c", "key"); // absorbed into the first step, and yet a change
    EXPECT_FALSE(undo.canRedo());
}

TEST_F(AppUndoTest, EntriesOfAClosedWindowGoWithIt) {
    undo.checkpointBench({}, {}, true);
    rename("a");
    rename("b");
    undo.undo(place);
    undo.discardEntries(id);
    EXPECT_FALSE(undo.canRedo());
    EXPECT_EQ(undo.title(), "Undo Clearing the Bench");

    rename("c");
    palettes.open.erase(id); // gone, and nobody said so
    undo.undo(place);
    EXPECT_EQ(desktop.toasts.taken().back(), "Undid clearing the Bench");
    EXPECT_FALSE(undo.canUndo());
}

} // namespace
} // namespace tintra
