#include "state/Bench.h"

#include "state/AppUndo.h"
#include "state/StoredBench.h"
#include "tests/state/FakePalettes.h"
#include "tests/support/FakeDesktop.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tintra {
namespace {

using Kind = BenchColumn::Kind;
constexpr WashColor kRed{1, 0, 0, 1}, kBlue{0, 0, 1, 1}, kYellow{1, 1, 0, 1}, kGrey{.5, .5, .5, 1};

class BenchTest : public ::testing::Test {
protected:
    BenchTest() {
        undo.attach(palettes, bench);
        harbour().name = "Harbour Straße";
        harbour().held = {{swatch, kRed, "Buoy"}, {Uuid{{2}}, kBlue, {}}};
    }

    FakeWindow& harbour() { return palettes.open[window]; }
    void follow() {
        bench.addStagedToBench(
            bench.stagedColumn(harbour().held[0], {harbour().name, window, swatch, 0}));
    }
    Uuid stage(const WashColor& color) {
        bench.addStagedToBench(bench.stagedColumn(color, {}));
        return bench.benchColumns().back().id;
    }
    const BenchColumn& first() { return bench.benchColumns().front(); }
    std::vector<WashColor> colors() {
        std::vector<WashColor> colors;
        for (const auto& column : bench.benchColumns())
            colors.push_back(column.color);
        return colors;
    }
    /// How the first column is tied to its swatch.
    std::string link() {
        bench.reconcileBenchProvenance();
        return bench.badgeText(first()) + ", " + bench.describeOrigin(first(), {}) + ", " +
               bench.name(first()) + " " + bench.currentColor(first()).identity();
    }
    std::vector<std::string> said() { return desktop.toasts.taken(); }

    const Uuid window{{9}}, swatch{{1}};
    FakeDesktop desktop{{}};
    FakePalettes palettes;
    AppUndo undo{desktop.services};
    Bench bench{desktop.services, palettes, undo};
};

TEST_F(BenchTest, AWellTogglesWhicheverColumnComesFirstAndGoesWithEither) {
    const auto a = stage(kBlue), b = stage(kYellow), c = stage(kRed);
    const auto steps = undo.entries().size();
    bench.toggleWell(a, b);
    EXPECT_EQ(bench.benchActive.value()->id, bench.benchWells().at(0).id);
    bench.toggleWell(b, a);
    EXPECT_TRUE(bench.benchWells().empty());
    EXPECT_EQ(bench.benchActive.value(), std::nullopt);
    bench.toggleWell(a, a);
    EXPECT_EQ(undo.entries().size(), steps + 2);

    for (const auto& [one, other] : {std::pair{a, b}, {b, c}, {a, c}})
        bench.toggleWell(one, other);
    const auto full = bench.content().value();
    bench.removeBenchColumn(b);
    EXPECT_EQ(bench.benchWells(), (std::vector{full.wells[2]}));
    undo.undo({});
    EXPECT_EQ(bench.content().value(), full);
    // a, a+b, a+c, b, b+c, c
    const auto order = bench.activeOrder();
    EXPECT_EQ(order.size(), 6U);
    EXPECT_EQ(order[2].id, full.wells[2].id);
    EXPECT_EQ(order[4].id, full.wells[1].id);
}

TEST_F(BenchTest, ColumnsMoveUnlessThereIsAWell) {
    const auto a = stage(kRed);
    stage(kBlue);
    const auto c = stage(kYellow);
    bench.moveBenchColumn(0, 2);
    EXPECT_EQ(colors(), (std::vector{kBlue, kYellow, kRed}));
    bench.receive({kRed, {}, DragOfBenchColumn{a}}, bench.benchColumns()[1].id);
    const std::vector moved{kBlue, kRed, kYellow};
    EXPECT_EQ(colors(), moved);
    const auto steps = undo.entries().size();
    bench.receive({kRed, {}, DragOfBenchColumn{a}}, c); // stays where it is
    EXPECT_EQ(undo.entries().size(), steps);
    EXPECT_TRUE(said().empty());

    bench.toggleWell(a, c);
    bench.receive({kRed, {}, DragOfBenchColumn{a}}, {});
    EXPECT_EQ(colors(), moved);
    EXPECT_EQ(desktop.toasts.shown.back().seconds, 2.5);
    EXPECT_EQ(said(),
              (std::vector<std::string>{"Reordering is paused while a well is on the Bench"}));
}

TEST_F(BenchTest, AWellMixesPigmentsAndIsKeptInOneStep) {
    const auto blue = stage({-1, 0, 3, 0.2}); // brought into sRGB, opaque
    bench.toggleWell(blue, stage(kYellow));
    const auto id = bench.benchWells()[0].id;
    const auto mix = bench.wellColor(bench.benchWells()[0]).value();
    EXPECT_NEAR(mix.r, 0.22, 0.005); // paint makes green of them, not the grey of light
    EXPECT_NEAR(mix.g, 0.56, 0.005);
    EXPECT_NEAR(mix.b, 0.33, 0.005);
    EXPECT_EQ(bench.wellRamp(bench.benchWells()[0], 11).at(5), mix);

    const auto full = bench.content().value();
    const auto steps = undo.entries().size();
    bench.addWellToBench(id);
    EXPECT_EQ(bench.benchColumns().back().color, mix);
    EXPECT_TRUE(bench.benchWells().empty());
    EXPECT_EQ(undo.entries().size(), steps + 1);
    undo.undo({});
    EXPECT_EQ(bench.content().value(), full);

    for (const double value : {0.3, 0.6, 1.7, std::nan("")})
        bench.updateWell(id, Bench::WellField::ratio, value);
    bench.updateWell(id, Bench::WellField::white, -1); // changes nothing
    EXPECT_EQ(bench.benchWells()[0].ratio, 1);
    EXPECT_EQ(undo.entries().size(), steps + 1);
    bench.updateWell(id, Bench::WellField::black, 0.5);
    EXPECT_EQ(undo.entries().size(), steps + 2);
    bench.updateWell(id, Bench::WellField::black, 0);
    said();
    bench.addWellToBench(id); // all yellow by now
    EXPECT_EQ(said(), std::vector<std::string>{"#FFFF00 is already on the Bench, staged"});
}

TEST_F(BenchTest, AColumnFollowsItsSwatch) {
    follow();
    EXPECT_EQ(link(), "PALETTE, from Harbour Straße, Buoy FF0000FF");
    EXPECT_EQ(bench.describeOrigin(first(), window), "from this palette");
    harbour().held[0].name = "Float";
    harbour().held[0].color = {0, 1, 0, 0.5};
    std::swap(harbour().held[0], harbour().held[1]);
    EXPECT_EQ(link(), "PALETTE, from Harbour Straße, Float 00FF00FF");
    EXPECT_EQ(first().source.origin->index, 1U);

    auto closed = palettes.open.extract(window);
    EXPECT_EQ(link(), "HARBOUR STRASSE, from Harbour Straße, Float 00FF00FF");
    palettes.open.insert(std::move(closed));
    const auto deleted = harbour().held.back();
    harbour().held.pop_back();
    EXPECT_EQ(link(), "STAGED, staged, Float 00FF00FF");
    EXPECT_EQ(bench.columnOf(window, swatch), nullptr);
    harbour().held.push_back(deleted); // undone
    harbour().name.reset();
    EXPECT_EQ(link(), "PALETTE, from another window, Float 00FF00FF");
    EXPECT_EQ(bench.columnOf(window, swatch), &first());

    // What undo brings back is in step at once.
    bench.removeBenchColumn(first().id);
    harbour().held.back().color = kYellow;
    undo.undo({});
    EXPECT_EQ(first().color, kYellow);
}

TEST_F(BenchTest, LinksSurviveARestart) {
    follow();
    bench.toggleWell(first().id, stage(kYellow));
    bench.updateWell(bench.benchWells()[0].id, Bench::WellField::white, 0.25);
    bench.frame = StoredFrame{1, 2, 3, 4};
    bench.captureForQuit();

    auto stored = decodedBench(desktop.defaults.records.at("TintraBench")).value();
    auto closed = palettes.open.extract(window);
    Bench next(desktop.services, palettes, undo);
    next.restoreIfNeeded();
    EXPECT_EQ(next.badgeText(next.benchColumns()[0]), "HARBOUR STRASSE");
    EXPECT_EQ(next.name(next.benchColumns()[0]), "Buoy");
    next.captureForQuit(); // before any window is back: nothing is forgotten
    stored.wasOpenAtLastQuit = false;
    stored.columns[0].kind = Kind::dormant;
    EXPECT_EQ(decodedBench(desktop.defaults.records.at("TintraBench")), stored);
    palettes.open.insert(std::move(closed));
    next.reconcileBenchProvenance();
    EXPECT_EQ(next.benchColumns()[0].source, first().source);
    EXPECT_EQ(next.benchActive.value()->id, next.benchWells().at(0).id);
    EXPECT_EQ(next.benchWells()[0].parentB, next.benchColumns()[1].id);
    EXPECT_TRUE(next.wasOpenAtLastQuit());
}

TEST_F(BenchTest, WithoutIdentifiersALinkIsFoundByNamePlaceAndColour) {
    using Row = std::tuple<const char*, std::optional<std::size_t>, WashColor, Kind>;
    for (const auto& [palette, index, color, kind] :
         {Row{"Harbour Straße", 1, kBlue, Kind::paletteSwatch},
          Row{"Harbour Straße", {}, kBlue, Kind::paletteSwatch},
          Row{"Harbour Straße", 0, kBlue, Kind::dormant}, Row{"P", 1, kBlue, Kind::dormant}}) {
        StoredBench stored;
        stored.columns = {{color, Kind::paletteSwatch, palette, {}, {}, {}, index}};
        desktop.defaults.records["TintraBench"] = encodedBench(stored);
        Bench next(desktop.services, palettes, undo);
        next.restoreIfNeeded();
        EXPECT_EQ(next.benchColumns()[0].source.kind, kind) << palette << color.identity();
    }
}

TEST_F(BenchTest, DropsSayWhatASendSays) {
    const auto last = stage(kYellow);
    const PaletteOrigin origin{harbour().name, window, swatch, 0};
    const std::vector<std::pair<Drag, std::string>> drops{
        {{kRed, {}, DragOfSwatch{origin}}, "Added #FF0000 to the Bench"},
        {{kRed, {}, DragOfSwatch{origin}}, "#FF0000 is already on the Bench, from this palette"},
        {{kRed, {}, {}}, "#FF0000 is already on the Bench, from Harbour Straße"},
        {{{1, 0, 0, .5}, {}, {}}, "#FF000080 is already on the Bench, from Harbour Straße"},
        {{kYellow, {}, {}}, "#FFFF00 is already on the Bench, staged"},
        {{kBlue, {}, DragOfBand{}},
         "Staged #0000FF on the Bench · a copy, so edits there leave the harmony as it is"},
        {{kGrey, {}, DragOfWell{}}, "Added #808080 to the Bench"},
        {{kGrey, {}, {}}, "#808080 is already on the Bench, mixed here"},
        {{{0, 1, 0, .9985}, {}, {}}, "Sent to Bench as opaque · alpha stays on the palette"},
    };
    for (const auto& [drag, text] : drops) {
        bench.receive(drag, last);
        EXPECT_EQ(said(), std::vector{text});
    }
    const WashColor green{0, 1, 0, 1};
    EXPECT_EQ(colors(), (std::vector{kRed, kBlue, kGrey, green, kYellow}));
    EXPECT_EQ(bench.benchActive.value()->id, bench.benchColumns()[3].id);
}

TEST_F(BenchTest, ClearingAsksForWhatNoPaletteHolds) {
    follow();
    bench.clearBench(Bench::Asking::yes);
    EXPECT_TRUE(desktop.dialogues.questions.empty());
    EXPECT_TRUE(bench.benchColumns().empty());
    undo.undo({});

    const auto question = [&] {
        bench.clearBench(Bench::Asking::yes); // cancelled
        const auto& asked = desktop.dialogues.questions.back();
        return asked.title + " " + asked.text;
    };
    const std::string lost = "Clear the Bench? Not in any open palette: ";
    const auto a = stage(kYellow);
    EXPECT_EQ(question(), lost + "1 colour. ⌘Z brings the Bench back.");
    const auto b = stage(kGrey);
    EXPECT_EQ(question(), lost + "2 colours. ⌘Z brings the Bench back.");
    bench.toggleWell(a, b);
    EXPECT_EQ(question(), lost + "2 colours and 1 mix. ⌘Z brings the Bench back.");

    const auto full = bench.content().value();
    desktop.dialogues.buttons = {"Clear"};
    bench.clearBench(Bench::Asking::yes);
    EXPECT_EQ(bench.content().value(), BenchContent{});
    undo.undo({});
    EXPECT_EQ(bench.content().value(), full);
    EXPECT_EQ(said().back(), "Undid clearing the Bench");
}

TEST(StoredBench, ARecordKeepsWhatItCanAndPlacesMeanTheSameItems) {
    const auto bench = decodedBench(R"({"columns": [
        {"color": {"r": 1, "g": 0, "b": 0, "a": 0.5}, "kind": "tomorrow's"},
        {"kind": "staged"},
        {"color": {"r": 0, "g": 0, "b": 1}, "kind": "dormant", "paletteName": "P", "index": -1},
        {"color": {"r": 0, "g": 1, "b": 0}, "kind": "derived", "name": ""}],
      "wells": [
        {"parentAIndex": 0, "parentBIndex": 1}, {"parentAIndex": 0, "parentBIndex": 4},
        {"parentAIndex": 3, "parentBIndex": 3},
        {"parentAIndex": 3, "parentBIndex": 2, "ratio": 7, "white": 0.5, "black": -1},
        {"parentAIndex": 2, "parentBIndex": 3, "ratio": 0, "white": 0, "black": 0}],
      "active": {"isWell": true, "index": 3}})");
    ASSERT_TRUE(bench);
    const StoredBench wanted{false,
                             {{kRed, Kind::staged, {}, {}, {}, {}, {}},
                              {kBlue, Kind::dormant, "P", {}, {}, {}, {}},
                              {{0, 1, 0, 1}, Kind::derived, {}, {}, {}, {}, {}}},
                             {{2, 1, 1, 0.5, 0}},
                             StoredBench::ActiveSnapshot{true, 0},
                             {}};
    EXPECT_EQ(*bench, wanted);
    EXPECT_EQ(decodedBench(encodedBench(wanted)), wanted);
}

TEST_F(BenchTest, ADamagedRecordIsSetAside) {
    for (const char* damaged : {"", "{\"columns\": [", "[]", "{}", "{\"columns\": 3}", "\xff"}) {
        desktop.defaults.records["TintraBench"] = damaged;
        Bench next(desktop.services, palettes, undo);
        next.restoreIfNeeded();
        EXPECT_EQ(next.content().value(), BenchContent{});
        EXPECT_EQ(std::exchange(desktop.defaults.asideKeys, {}).size(), 1U) << damaged;
        EXPECT_EQ(std::exchange(desktop.log.lines, {}).size(), 1U) << damaged;
    }
}

} // namespace
} // namespace tintra
