#include "colour/ContrastTarget.h"

#include <benchmark/benchmark.h>

#include <array>

namespace {

using namespace tintra;

/// Ratio and Lc of a pair of colours as hex gives them: whole bytes.
void pairOfBytes(benchmark::State& state) {
    WashColor text{0x33 / 255.0, 0x66 / 255.0, 0x99 / 255.0, 1}, ground{1, 0xEE / 255.0, 0.8, 1};
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(text);
        benchmark::DoNotOptimize(ground);
        benchmark::DoNotOptimize(Contrast::wcagRatio(text, ground));
        benchmark::DoNotOptimize(Contrast::apcaLc(text, ground));
    }
}
BENCHMARK(pairOfBytes);

/// The same of colours that lie between bytes, as mixtures and pictures give them.
void pairOfFractions(benchmark::State& state) {
    WashColor text{0.123456, 0.3456789, 0.61, 0.9}, ground{0.987, 0.901, 0.8123, 1};
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(text);
        benchmark::DoNotOptimize(ground);
        benchmark::DoNotOptimize(Contrast::wcagRatio(text, ground));
        benchmark::DoNotOptimize(Contrast::apcaLc(text, ground));
    }
}
BENCHMARK(pairOfFractions);

/// A search that finds nothing: every lightness of a saturated colour, with chroma to fit at most.
void reachInVain(benchmark::State& state) {
    const WashColor text{0, 0, 1, 1}, ground{0.46, 0.46, 0.46, 1};
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(Contrast::reach(text, [&](const WashColor& candidate) {
            return Contrast::wcagRatio(candidate, ground) >= 7;
        }));
}
BENCHMARK(reachInVain)->Unit(benchmark::kMicrosecond);

/// Both proposals for a common pair.
void proposals(benchmark::State& state) {
    const WashColor text{0.9, 0.5, 0.1, 1}, ground{1, 1, 1, 1};
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(
            Contrast::reachReport(text, ground, Contrast::Target::aa, Contrast::LargeText::no));
}
BENCHMARK(proposals)->Unit(benchmark::kMicrosecond);

/// The marks of one slider.
void thresholds(benchmark::State& state) {
    const WashColor text{0, 0, 1, 1}, ground{0.46, 0.46, 0.46, 1};
    const std::array ratios{3.0, 4.5, 7.0};
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(
            Contrast::thresholdLightnesses(text, ground, Contrast::Role::text, ratios));
}
BENCHMARK(thresholds)->Unit(benchmark::kMicrosecond);

} // namespace
