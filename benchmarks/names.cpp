#include "colour/ColorNames.h"
#include "colour/NameList.h"
#include "colour/NameScan.h"
#include "platform/File.h"
#include "platform/Locations.h"

#include <benchmark/benchmark.h>

#include <array>
#include <random>
#include <variant>
#include <vector>

namespace tintra {
namespace {

Bytes listFile() {
    auto file = readFile(shippedFile("colornames.tsv"));
    auto* const bytes = std::get_if<Bytes>(&file);
    return bytes != nullptr ? std::move(*bytes) : Bytes();
}

/// A walk over every 8-bit colour that does not come back to one before it has seen all.
WashColor nthColour(std::uint32_t n) {
    const auto code = n * 0x9E3779B1U;
    const auto part = [code](unsigned shift) { return (code >> shift & 0xFFU) / 255.0; };
    return {part(8), part(16), part(24), 1};
}

void readList(benchmark::State& state) {
    for ([[maybe_unused]] const auto _ : state) {
        const NameList list(listFile());
        if (list.empty()) return state.SkipWithError("no list beside the program");
    }
}
BENCHMARK(readList)->Unit(benchmark::kMicrosecond);

void coldLookUp(benchmark::State& state) {
    auto& names = ColorNames::shared();
    names.loadIfNeeded();
    static std::uint32_t n = 1'000; // no colour of an earlier run, which would be in the cache
    for ([[maybe_unused]] const auto _ : state)
        benchmark::DoNotOptimize(names.name(nthColour(n++)));
}
BENCHMARK(coldLookUp)->Unit(benchmark::kMicrosecond);

void cachedLookUp(benchmark::State& state) {
    auto& names = ColorNames::shared();
    std::uint32_t n = 0;
    for ([[maybe_unused]] const auto _ : state)
        benchmark::DoNotOptimize(names.name(nthColour(n++ % 256)));
}
BENCHMARK(cachedLookUp);

/// Each way to scan as many random colours as the list has.
void scan(benchmark::State& state) {
    constexpr std::size_t kCount = 31'000;
    const auto scans = nameScans();
    const auto way = static_cast<std::size_t>(state.range(0));
    if (way >= scans.size()) return state.SkipWithError("the processor lacks it");
    state.SetLabel(std::string(scans[way].title));

    std::mt19937_64 random(1); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same colours in every run
    std::uniform_real_distribution<double> anywhere(-0.4, 0.4);
    std::array<std::vector<double>, 3> columns;
    for (auto& column : columns)
        for (std::size_t i = 0; i < kCount; ++i)
            column.push_back(anywhere(random));
    for ([[maybe_unused]] const auto _ : state)
        benchmark::DoNotOptimize(
            scans[way].scan({columns[0], columns[1], columns[2]}, {anywhere(random), 0, 0}));
}
BENCHMARK(scan)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace tintra
