#include "palettes/Stylesheet.h"

#include "platform/Number.h"

#include <benchmark/benchmark.h>

#include <array>
#include <string>

namespace {

/// A megabyte of a stylesheet: 20,000 variables in turn of every kind that values are of.
std::string mixedStylesheet() {
    std::string text = ":root {\n";
    for (int i = 0; i < 20'000; ++i) {
        const auto n = [i](int factor, int below) { return tintra::shortest(i * factor % below); };
        const std::string hex = "#" + tintra::shortest(100'000 + i * 37 % 900'000);
        const std::array<std::string, 7> values{
            hex,
            "rgb(" + n(7, 256) + ", " + n(11, 256) + ", " + n(13, 256) + ")",
            "oklch(0." + n(1, 9) + " 0.1" + n(3, 10) + " " + n(17, 360) + ")",
            i % 2 == 0 ? "rebeccapurple" : "1px solid cornflowerblue",
            "var(--brand-primary-" + n(1, 100) + ")",
            "linear-gradient(to right, " + hex + ", rgba(0, 0, " + n(3, 256) + ", 0.5) 40%)",
            "0 0 " + n(1, 20) + "px " + hex + " !important",
        };
        text += "  --brand-" + tintra::shortest(i) + ": " +
                values[static_cast<std::size_t>(i) % values.size()] + "; // step\n";
    }
    return text + "}\n";
}

void readStylesheet(benchmark::State& state) {
    const auto text = mixedStylesheet();
    std::size_t swatches = 0;
    for ([[maybe_unused]] auto _ : state) {
        const auto read = tintra::Stylesheet::read(text);
        swatches = read.size();
        benchmark::DoNotOptimize(read.data());
    }
    state.counters["bytes"] = static_cast<double>(text.size());
    state.counters["swatches"] = static_cast<double>(swatches);
}
BENCHMARK(readStylesheet)->Unit(benchmark::kMillisecond);

} // namespace
