#pragma once

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <algorithm>
#include <chrono>
#include <vector>

namespace tintra::bench {

/// A whole run: time from start to end, and the most memory held.
struct Run {
    double seconds;
    double mebibytes;
    bool succeeded;
};

/// Runs a program (looked up like a shell's) to its end; its output goes nowhere.
inline Run runProgram(std::vector<const char*> arguments) {
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    const auto begin = std::chrono::steady_clock::now();
    pid_t child = 0;
    const int failed = posix_spawnp(&child, arguments[0], &actions, nullptr,
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

/// Times whole runs, and tells the most memory that any of them held.
inline void wholeRuns(benchmark::State& state, const std::vector<const char*>& arguments) {
    double most = 0;
    for ([[maybe_unused]] auto _ : state) {
        const auto run = runProgram(arguments);
        if (!run.succeeded) {
            state.SkipWithError("the program failed or is not there");
            break;
        }
        state.SetIterationTime(run.seconds);
        most = std::max(most, run.mebibytes);
    }
    state.counters["MiB"] = most;
}

} // namespace tintra::bench
