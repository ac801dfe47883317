// Whole runs of the program as a person or a script starts it: time from start to end, and the
// most memory it held.

#include "benchmarks/RunProgram.h"

#include <benchmark/benchmark.h>

namespace {

void whole(benchmark::State& state, std::vector<const char*> arguments) {
    arguments.insert(arguments.begin(), TINTRA_PROGRAM);
    tintra::bench::wholeRuns(state, arguments);
}

BENCHMARK_CAPTURE(whole, version, {"--version"})->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(whole, code, {"code", "#f80"})->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(whole, name, {"name", "#f80"})->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(whole, show, {"show", "#f80"})->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
