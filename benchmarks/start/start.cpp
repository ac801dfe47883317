// From the start of the application to its first painted window, beside a bare Qt program in the
// same run; and the memory that each holds once it is idle (PSS: shared pages count in parts).

#include "benchmarks/start/WatchedDisplay.h"

#include <benchmark/benchmark.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

namespace {

using tintra::bench::WatchedDisplay;

/// Folders of its own for what the application keeps, and a palette; gone in the end.
class Home {
public:
    Home() {
        std::string pattern = std::filesystem::temp_directory_path() / "start-XXXXXX";
        folder_ = mkdtemp(pattern.data());
        for (const auto* name : {"XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_DATA_HOME"})
            setenv(name, folder_.c_str(), 1);
        std::ofstream palette(file());
        palette << "GIMP Palette\nName: Twelve\n#\n";
        for (int i = 0; i < 12; ++i)
            palette << i * 21 << ' ' << 255 - i * 21 << " 128 Colour " << i << '\n';
    }
    ~Home() {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }
    Home(const Home&) = delete;
    Home& operator=(const Home&) = delete;

    std::string file() const { return folder_ / "twelve.gpl"; }

private:
    std::filesystem::path folder_;
};

double pssMebibytes(pid_t process) {
    std::ifstream rollup("/proc/" + std::to_string(process) + "/smaps_rollup");
    for (std::string line; std::getline(rollup, line);)
        if (line.starts_with("Pss:")) return std::stod(line.substr(4)) / 1024;
    return 0;
}

/// A program that runs while this lives.
class Running {
public:
    explicit Running(const std::vector<const char*>& arguments) {
        auto all = arguments;
        all.push_back(nullptr);
        const int failed = posix_spawnp(&process_, all[0], nullptr, nullptr,
                                        const_cast<char* const*>(all.data()), environ);
        if (failed != 0) process_ = 0;
    }
    ~Running() {
        if (process_ == 0) return;
        kill(process_, SIGTERM);
        waitpid(process_, nullptr, 0);
    }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

    pid_t process() const { return process_; }

private:
    pid_t process_ = 0;
};

void firstWindow(benchmark::State& run, std::vector<const char*> arguments, bool withPalette) {
    WatchedDisplay display;
    if (!display.isThere()) return run.SkipWithError("no Xvfb");
    setenv("DISPLAY", display.name().c_str(), 1);
    setenv("QT_QPA_PLATFORM", "xcb", 1);
    const Home home;
    const auto file = home.file();
    if (withPalette) arguments.push_back(file.c_str());
    double mapped = 0, most = 0;
    for ([[maybe_unused]] auto _ : run) {
        const auto begin = WatchedDisplay::Clock::now();
        const Running program(arguments);
        const auto shown = display.nextWindow();
        if (!shown) return run.SkipWithError("no window came");
        const std::chrono::duration<double> untilMapped = shown->mapped - begin;
        const std::chrono::duration<double> untilPainted = shown->painted - begin;
        run.SetIterationTime(untilPainted.count());
        mapped += untilMapped.count() * 1000;
        std::this_thread::sleep_for(std::chrono::milliseconds(500));
        most = std::max(most, pssMebibytes(program.process()));
    }
    run.counters["mapped_ms"] = benchmark::Counter(mapped, benchmark::Counter::kAvgIterations);
    run.counters["PSS_MiB"] = most;
}

BENCHMARK_CAPTURE(firstWindow, bare, {BARE_WINDOW}, false)
    ->UseManualTime()
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(firstWindow, application, {TINTRA_DESKTOP_PROGRAM}, false)
    ->UseManualTime()
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(firstWindow, application_with_a_palette, {TINTRA_DESKTOP_PROGRAM}, true)
    ->UseManualTime()
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);

} // namespace
