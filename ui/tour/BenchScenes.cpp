#include "state/Models.h"
#include "ui/bench/BenchWindow.h"
#include "ui/tour/Scenes.h"

namespace tintra::tour {
namespace {

/// Two swatches of the palette, one of a palette that is closed, two copies.
void lay(Stage& stage) {
    stage.fill({{}, {colour("e9b50b"), colour("1d3c8f")}, {"Cadmium", "Ultramarine"}}, {960, 600});
    auto& bench = stage.ui().models.bench();
    stage.state().toggleBenchedSwatch(0);
    stage.state().toggleBenchedSwatch(1);
    auto crimson = bench.stagedColumn(colour("a31b2b"), std::string("Crimson"));
    crimson.source = {BenchColumn::Kind::dormant, PaletteOrigin{"Harbour Light", {}, {}, 0}};
    bench.addStagedToBench(std::move(crimson));
    bench.addStagedToBench(bench.stagedColumn(colour("f2eee4"), std::string("Chalk")));
    bench.addStagedToBench(bench.stagedColumn(colour("1f7a63"), std::string("Viridian")));
}

void mix(Bench& bench, std::size_t one, std::size_t other, double ratio) {
    const auto& columns = bench.benchColumns();
    bench.toggleWell(Uuid(columns[one].id), Uuid(columns[other].id));
    bench.updateWell(Uuid(bench.benchWells().back().id), Bench::WellField::ratio, ratio);
}

BenchWindow& opened(Stage& stage, QSize size) {
    stage.app().openBench();
    auto& window = stage.open<BenchWindow>();
    window.resize(size);
    stage.settle(3000);
    return window;
}

QImage twoMixes(Stage& stage) {
    lay(stage);
    auto& bench = stage.ui().models.bench();
    mix(bench, 2, 3, 0.62);
    mix(bench, 0, 1, 0.5);
    return stage.grab(opened(stage, {1040, 668}));
}

QImage apart(Stage& stage) {
    lay(stage);
    auto& bench = stage.ui().models.bench();
    mix(bench, 0, 1, 0.4);
    mix(bench, 1, 3, 0.3);
    bench.vision = Vision::deuteranopia;
    bench.benchActive = BenchSelection{BenchSelection::Of::column, bench.benchColumns()[2].id};
    return stage.grab(opened(stage, {760, 480}));
}

/// As small as the window goes, with the largest type.
QImage small(Stage& stage) {
    stage.preferences().typeSize = TypeSize::largest;
    lay(stage);
    mix(stage.ui().models.bench(), 0, 1, 0.5);
    return stage.grab(opened(stage, {560, 400}));
}

/// More than have room; the last ones are in view.
QImage many(Stage& stage) {
    auto& bench = stage.ui().models.bench();
    for (const auto& one : interfaceScale().colours)
        bench.addStagedToBench(bench.stagedColumn(one, std::nullopt));
    mix(bench, 34, 35, 0.5);
    mix(bench, 28, 32, 0.5);
    return stage.grab(opened(stage, {1040, 640}));
}

QImage empty(Stage& stage) {
    return stage.grab(opened(stage, {560, 400}));
}

constexpr Scene kScenes[] = {
    {"bench", kAll, twoMixes},   {"bench-apart", kLight, apart}, {"bench-small", kLight, small},
    {"bench-many", kBoth, many}, {"bench-empty", kBoth, empty},
};

} // namespace

std::span<const Scene> benchScenes() {
    return kScenes;
}

} // namespace tintra::tour
