#include "benchmarks/OffscreenApplication.h"
#include "tests/ui/LibraryDesk.h"

#include <benchmark/benchmark.h>

#include <QScrollBar>
#include <algorithm>
#include <ctime>
#include <memory>

// The Library window over 10,000 palettes of 32 swatches. What runs in the background is timed as
// part of the answer, but not as time for which the main loop is held.

namespace tintra {
namespace {

constexpr int kPalettes = 10'000, kSwatches = 32;

/// Of the processor, so that other programs do not count; everything runs on this thread.
double millisecondsSince(std::clock_t begin) {
    return 1000.0 * static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

struct FullDesk : test::LibraryDesk {
    FullDesk() {
        for (int i = 0; i < kPalettes; ++i)
            gpl("Studio/Palette " + std::to_string(i) + ".gpl", kSwatches, "Harbour Tone");
        watch("Studio");
    }
    static FullDesk& shared() {
        bench::offscreenApplication();
        static FullDesk desk;
        return desk;
    }
};

/// From nothing to a painted window, every file read before.
void open(benchmark::State& run) {
    auto& desk = FullDesk::shared();
    for (auto _ : run) {
        LibraryWindow window(desk.ui);
        test::open(window, {960, 680});
        desk.settle();
        window.grab();
        if (window.model().listing().finds.size() != kPalettes)
            return run.SkipWithError("not every palette is listed");
    }
}
BENCHMARK(open)->Unit(benchmark::kMillisecond);

/// A step of the wheel until it is painted; rows and tiles.
void scroll(benchmark::State& run) {
    auto& desk = FullDesk::shared();
    desk.models.preferences().libraryTiles = run.range(0) == 1;
    LibraryWindow window(desk.ui);
    test::open(window, {1400, 1000});
    desk.settle();
    auto* bar = test::child<QScrollBar>(window);
    QImage frame(window.size(), QImage::Format_RGB32);
    for (auto _ : run) {
        bar->setValue((bar->value() + 37) % bar->maximum());
        window.render(&frame);
    }
    desk.models.preferences().libraryTiles = false;
}
BENCHMARK(scroll)->DenseRange(0, 1)->Unit(benchmark::kMillisecond);

/// A text in the field until what is found is painted.
void search(benchmark::State& run, const char* text, ColourMatch match) {
    auto& desk = FullDesk::shared();
    desk.models.preferences().libraryMatch = match;
    LibraryWindow window(desk.ui);
    test::open(window, {960, 680});
    desk.settle();
    auto* field = test::child<QLineEdit>(window);
    QImage frame(window.size(), QImage::Format_RGB32);
    double longest = 0, slowest = 0;
    // What holds the loop: a key, the answer that comes back, the paint. Between them it is free.
    const auto hold = [&longest](const auto& act) {
        const auto begin = std::clock();
        act();
        longest = std::max(longest, millisecondsSince(begin));
    };
    for (auto _ : run) {
        field->clear();
        desk.settle();
        desk.desktop.background.holds = true;
        const auto begin = std::clock();
        hold([&] { field->setText(QString::fromUtf8(text)); });
        desk.desktop.background.finish();
        hold([&] { desk.desktop.loop.turn(); });
        hold([&] { window.render(&frame); });
        slowest = std::max(slowest, millisecondsSince(begin));
        desk.desktop.background.finish();
        desk.desktop.background.holds = false;
    }
    run.counters["longestHold_ms"] = longest;
    run.counters["slowestAnswer_ms"] = slowest;
    run.counters["found"] = static_cast<double>(window.model().listing().finds.size());
}
BENCHMARK_CAPTURE(search, close, "#439701", ColourMatch::close)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(search, hue, "#439701", ColourMatch::hue)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(search, nothing, "#123456", ColourMatch::exact)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(search, everyName, "tone", ColourMatch::close)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(search, noName, "toner harbour", ColourMatch::close)
    ->Unit(benchmark::kMillisecond);

/// What the main loop does when the store's list has changed.
void takeContent(benchmark::State& run) {
    auto& models = FullDesk::shared().models;
    for (auto _ : run) {
        auto content =
            libraryContent(models.store(), models.preferences().paletteLocations.value(), false);
        benchmark::DoNotOptimize(content);
        run.PauseTiming();
        content = {};
        run.ResumeTiming();
    }
}
BENCHMARK(takeContent)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tintra
