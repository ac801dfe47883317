// Conversions through colour management, with their transforms set up and kept.

#include "colour/ColorProfiles.h"
#include "colour/WashColor.h"

#include <benchmark/benchmark.h>

#include <array>

namespace tintra {
namespace {

constexpr std::array kColours{
    WashColor{0.118, 0.302, 0.420, 1},
    WashColor{0.886, 0.584, 0.471, 1},
    WashColor{0.2, 0.7, 0.3, 1},
    WashColor{0.95, 0.95, 0.9, 1},
};

template <typename Convert>
void overColours(benchmark::State& state, Convert convert) {
    std::size_t i = 0;
    benchmark::DoNotOptimize(convert(kColours[0])); // sets the transform up
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(convert(kColours[++i % kColours.size()]));
}

void cmyk(benchmark::State& state) {
    overColours(state, [](const WashColor& colour) { return colour.cmyk(); });
}
BENCHMARK(cmyk);

void fromCmyk(benchmark::State& state) {
    const auto space = ColourSpace::deviceCMYK();
    overColours(state, [&](const WashColor& colour) {
        return space->toSrgb({colour.r, colour.g, colour.b, 0.1});
    });
}
BENCHMARK(fromCmyk);

void gamutTest(benchmark::State& state) {
    const auto space = ColourSpace::deviceCMYK();
    overColours(state, [&](const WashColor& colour) { return isOutsideGamut(colour, *space); });
}
BENCHMARK(gamutTest);

void displayP3Bytes(benchmark::State& state) {
    const auto space = ColourSpace::displayP3();
    overColours(state, [&](const WashColor& colour) { return colour.rgb255(*space); });
}
BENCHMARK(displayP3Bytes);

} // namespace
} // namespace tintra
