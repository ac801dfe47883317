// What a step of a well's ratio costs, painted by software, with the track, the ramp and the codes
// that follow it: at most 8 ms are to go by.

#include "benchmarks/OffscreenApplication.h"
#include "state/Bench.h"
#include "tests/ui/Desk.h"
#include "ui/bench/BenchWindow.h"

#include <benchmark/benchmark.h>

namespace tintra {
namespace {

void draggingTheRatio(benchmark::State& run) {
    bench::offscreenApplication();
    test::Desk desk;
    auto& on = desk.models.bench();
    for (int i = 0; i < run.range(0); ++i)
        on.addStagedToBench(on.stagedColumn(test::Desk::colour(static_cast<std::size_t>(i)), {}));
    on.toggleWell(Uuid(on.benchColumns()[0].id), Uuid(on.benchColumns()[1].id));
    BenchWindow window(desk.ui);
    test::open(window, {1920, 1080});
    const Uuid well = on.benchWells()[0].id;
    int at = 0;
    for (auto _ : run) {
        at = (at + 7) % 1000;
        on.updateWell(well, Bench::WellField::ratio, at / 1000.0);
        QCoreApplication::processEvents();
    }
}
BENCHMARK(draggingTheRatio)->Arg(5)->Arg(40)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tintra
