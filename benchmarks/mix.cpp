#include "mix/TintraMix.h"

#include <benchmark/benchmark.h>

namespace {

using TintraMix::SRGB;

/// Two colours whose mixture lies in the gamut.
void mixOfPaints(benchmark::State& state) {
    SRGB a{0.8, 0.3, 0.2}, b{0.2, 0.5, 0.7};
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(a);
        benchmark::DoNotOptimize(TintraMix::mix(a, b, 0.4, 0.2, 0.1));
    }
}
BENCHMARK(mixOfPaints);

/// Primaries, whose mixtures mostly have to be mapped back into the gamut.
void mixOfPrimaries(benchmark::State& state) {
    SRGB a{0, 0, 1}, b{1, 1, 0};
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(a);
        benchmark::DoNotOptimize(TintraMix::mix(a, b, 0.5, 0, 0));
    }
}
BENCHMARK(mixOfPrimaries);

/// The preview strip of a well.
void rampOf256(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(TintraMix::ramp({0, 0, 1}, {1, 1, 0}, 0, 0, 256));
}
BENCHMARK(rampOf256)->Unit(benchmark::kMicrosecond);

} // namespace
