#include "palettes/PaletteStore.h"
#include "platform/File.h"
#include "platform/FolderWatch.h"
#include "platform/MainLoop.h"
#include "platform/Number.h"
#include "platform/ThreadPool.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace tintra {
namespace {

constexpr int kPalettes = 10'000;
constexpr int kSwatches = 32;

using SteadyClock = std::chrono::steady_clock;

double millisecondsSince(SteadyClock::time_point begin) {
    return std::chrono::duration<double, std::milli>(SteadyClock::now() - begin).count();
}

/// A main loop that notes how long its longest task took.
class TimedLoop final : public MainLoop {
public:
    void post(std::function<void()> task) override {
        {
            const std::scoped_lock guard(lock_);
            tasks_.push_back(std::move(task));
        }
        change_.notify_one();
    }
    std::unique_ptr<DelayedTask> after(double, std::function<void()>) override { return nullptr; }

    void runOne() {
        std::unique_lock guard(lock_);
        change_.wait(guard, [&] { return !tasks_.empty(); });
        auto task = std::move(tasks_.front());
        tasks_.pop_front();
        guard.unlock();
        timed(std::exchange(task, {}));
    }
    /// The end of the task is part of it: what it held is let go of.
    template <class Task>
    void timed(Task task) {
        const auto begin = SteadyClock::now();
        {
            const auto run = std::move(task);
            run();
        }
        longest = std::max(longest, millisecondsSince(begin));
    }

    double longest = 0; ///< milliseconds

private:
    std::mutex lock_;
    std::condition_variable change_;
    std::deque<std::function<void()>> tasks_;
};

class NoWatch final : public FolderWatch {
public:
    void watch(std::vector<std::filesystem::path>) override {}
    void whenChanged(std::function<void(const std::filesystem::path&)>) override {}
};

class NoTrash final : public Trash {
public:
    std::variant<TrashedFile, FileError> trash(const std::filesystem::path&) override {
        return FileError{"none"};
    }
    std::optional<FileError> putBack(const TrashedFile&) override { return std::nullopt; }
};

/// Different colours and names in every palette, the same in every run.
std::string paletteFile(int number) {
    std::string file = "GIMP Palette\n#\n";
    for (int i = 0; i < kSwatches; ++i) {
        const auto code = static_cast<std::uint32_t>(number * kSwatches + i) * 0x9E3779B1U;
        for (const unsigned shift : {8U, 16U, 24U}) {
            appendInteger(file, static_cast<int>(code >> shift & 0xFFU));
            file += ' ';
        }
        file += "\tHarbour Tone ";
        appendInteger(file, static_cast<int>(code % 100'000));
        file += '\n';
    }
    return file;
}

/// A folder of palettes that goes away at the end of the program.
class Folder {
public:
    Folder() {
        auto pattern = (std::filesystem::temp_directory_path() / "tintra-bench-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr) std::abort();
        path_ = pattern;
        for (int i = 0; i < kPalettes; ++i) {
            std::string name = "Palette ";
            appendInteger(name, i);
            if (writeFile(path_ / (name + ".gpl"), asBytes(paletteFile(i)), Existing::refuse))
                std::abort();
        }
    }
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    static const Folder& shared() {
        static const Folder folder;
        return folder;
    }
    std::vector<PaletteLocation> locations() const {
        PaletteLocation location;
        location.path = path_;
        return {location};
    }

private:
    std::filesystem::path path_;
};

/// A store with everything it needs.
struct Library {
    TimedLoop loop;
    NoWatch watch;
    NoTrash trash;
    ThreadPool background{2};
    PaletteStore store{PaletteSurroundings{loop, background, watch, trash, {}, {}, {}}};

    void scan() {
        loop.timed([this] { store.setLocations(Folder::shared().locations(), false); });
        while (store.isScanning())
            loop.runOne();
    }
    static Library& scanned() {
        static Library library;
        if (library.store.available().empty()) library.scan();
        return library;
    }
};

void search(benchmark::State& state, const char* text, ColourMatch match) {
    auto& store = Library::scanned().store;
    std::size_t found = 0;
    for ([[maybe_unused]] const auto _ : state)
        found = store.find(PaletteQuery(text, match)).size();
    state.counters["found"] = static_cast<double>(found);
}
BENCHMARK_CAPTURE(search, close, "#1e4d6b", ColourMatch::close)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(search, hue, "#1e4d6b", ColourMatch::hue)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(search, everySwatchName, "tone", ColourMatch::close)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(search, noName, "toner harbour", ColourMatch::close)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(search, fewNames, "tone 4711", ColourMatch::close)->Unit(benchmark::kMillisecond);

void sortByName(benchmark::State& state) {
    const auto& entries = Library::scanned().store.available();
    for ([[maybe_unused]] const auto _ : state)
        benchmark::DoNotOptimize(sortedPositions(entries, {true, false, false}));
}
BENCHMARK(sortByName)->Unit(benchmark::kMillisecond);

void firstScan(benchmark::State& state) {
    Folder::shared();
    double longest = 0;
    for ([[maybe_unused]] const auto _ : state) {
        Library library;
        library.scan();
        if (library.store.available().size() != kPalettes)
            return state.SkipWithError("not every palette was found");
        longest = std::max(longest, library.loop.longest);
    }
    state.counters["longestTask_ms"] = longest;
}
BENCHMARK(firstScan)->Unit(benchmark::kMillisecond)->UseRealTime();

void rescanUnchanged(benchmark::State& state) {
    auto& library = Library::scanned();
    library.loop.longest = 0;
    for ([[maybe_unused]] const auto _ : state)
        library.scan();
    state.counters["longestTask_ms"] = library.loop.longest;
}
BENCHMARK(rescanUnchanged)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
} // namespace tintra
