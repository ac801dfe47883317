// Whole runs of the program as a person or a script starts it: time from start to end, and the
// most memory it held.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <chrono>
#include <vector>

namespace {

struct Run {
    double seconds;
    double mebibytes;
    bool succeeded;
};

Run runProgram(std::vector<const char*> arguments) {
    arguments.insert(arguments.begin(), TINTRA_PROGRAM);
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    const auto begin = std::chrono::steady_clock::now();
    pid_t child = 0;
    const int failed = posix_spawn(&child, arguments[0], &actions, nullptr,
                                   const_cast<char* const*>(arguments.data()), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (failed != 0) return {0, 0, false};
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
    return {took.count(), static_cast<double>(usage.ru_maxrss) / 1024,
            WIFEXITED(status) && WEXITSTATUS(status) == 0};
}

void whole(benchmark::State& state, const std::vector<const char*>& arguments) {
    double most = 0;
    for (auto _ : state) {
        const auto run = runProgram(arguments);
        if (!run.succeeded) {
            state.SkipWithError("the program failed");
            break;
        }
        state.SetIterationTime(run.seconds);
        most = std::max(most, run.mebibytes);
    }
    state.counters["MiB"] = most;
}

BENCHMARK_CAPTURE(whole, version, {"--version"})->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(whole, code, {"code", "#f80"})->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(whole, name, {"name", "#f80"})->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(whole, show, {"show", "#f80"})->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
