#include "tests/state/ModelRun.h"

#include <benchmark/benchmark.h>

#include <string>

namespace tintra {
namespace {

/// A run whose first window, and as many further ones as asked for, hold full palettes of named
/// swatches; the first palette has room for one more.
struct FullRun {
    explicit FullRun(int furtherWindows = 0) {
        fill(run.primary(), kPaletteCapacity - 1);
        for (int i = 0; i < furtherWindows; ++i)
            fill(run.windows().openExtra(), kPaletteCapacity);
        run.pass();
    }

    static void fill(AppState& window, std::size_t count) {
        std::vector<WashColor> colours;
        std::vector<std::optional<std::string>> names;
        for (std::size_t i = 0; i < count; ++i) {
            colours.push_back({static_cast<double>(i) / 255, 0.25, 0.75, 1});
            names.emplace_back("Swatch of the middle row " + std::to_string(i));
        }
        window.replacePalette(colours, names);
    }

    Machine machine;
    ModelRun run{machine};
};

void addAndRemove(benchmark::State& state) {
    FullRun full;
    auto& window = full.run.primary();
    for (auto _ : state) {
        window.addToPalette({1, 1, 1, 1}, AppState::Duplicates::refuse);
        window.removeSwatch(kPaletteCapacity - 1);
    }
    state.SetItemsProcessed(2 * static_cast<std::int64_t>(state.iterations()));
}
BENCHMARK(addAndRemove);

void move(benchmark::State& state) {
    FullRun full;
    auto& window = full.run.primary();
    std::size_t to = 1;
    for (auto _ : state) {
        window.moveSwatch(0, to);
        to = to % 200 + 1;
    }
}
BENCHMARK(move);

void undoAndRedo(benchmark::State& state) {
    FullRun full;
    auto& window = full.run.primary();
    auto& undo = full.run.models.undo();
    window.removeSwatch(100);
    for (auto _ : state) {
        undo.undo(window.place());
        undo.redo(window.place());
        full.machine.desktop.toasts.shown.clear();
    }
    state.SetItemsProcessed(2 * static_cast<std::int64_t>(state.iterations()));
}
BENCHMARK(undoAndRedo);

/// What the main loop spends when a window's record falls due, the argument's windows beside it.
void saveWorkspace(benchmark::State& state) {
    FullRun full(static_cast<int>(state.range(0)));
    auto& window = *full.run.windows().state(full.run.windows().order().value().back());
    double shade = 0;
    for (auto _ : state) {
        state.PauseTiming();
        window.replaceInPalette(7, {shade, shade, 0.5, 1});
        shade = shade < 1 ? shade + 1.0 / 4096 : 0;
        state.ResumeTiming();
        window.persistNow();
    }
}
BENCHMARK(saveWorkspace)->Arg(0)->Arg(5)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace tintra
