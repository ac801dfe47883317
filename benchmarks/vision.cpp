#include "colour/Vision.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <vector>

namespace {

using namespace tintra;

/// A picture of a million random pixels, none like its neighbour.
void megapixel(benchmark::State& state) {
    std::mt19937 random; // NOLINT(cert-msc*): the same picture each time
    std::vector<std::uint8_t> picture(4'000'000);
    for (auto& byte : picture)
        byte = static_cast<std::uint8_t>(random());
    auto seen = picture;
    for ([[maybe_unused]] auto _ : state) {
        std::ranges::copy(picture, seen.begin());
        simulatePicture(Vision::deuteranopia, seen);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(megapixel)->Unit(benchmark::kMillisecond);

void singleColour(benchmark::State& state) {
    WashColor colour{0.2, 0.7, 0.4, 1};
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(colour);
        benchmark::DoNotOptimize(simulate(Vision::deuteranopia, colour));
    }
}
BENCHMARK(singleColour);

} // namespace
