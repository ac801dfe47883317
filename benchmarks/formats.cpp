#include "colour/ColorFormat.h"

#include <benchmark/benchmark.h>

#include <string>

namespace tintra {
namespace {

/// One colour in one format, by the format's place among all.
void format(benchmark::State& state) {
    const auto code = ColorFormat::all()[static_cast<std::size_t>(state.range(0))];
    state.SetLabel(std::string(code.rawValue()));
    WashColor colour{0.9, 0.3, 0.1, 1};
    const FormatOptions options;
    for ([[maybe_unused]] const auto _ : state) {
        benchmark::DoNotOptimize(colour);
        benchmark::DoNotOptimize(code.string(colour, "Robin\u2019s Egg Blue", options));
    }
}
BENCHMARK(format)
    ->Arg(ColorFormat::cssHex)
    ->Arg(ColorFormat::cssOKLCH)
    ->Arg(ColorFormat::cssRGB)
    ->Arg(ColorFormat::cssVariable)
    ->Arg(ColorFormat::swiftNSSRGB)
    ->Arg(ColorFormat::cgColorCMYK);

} // namespace
} // namespace tintra
