// What a step of a drag of the text's lightness costs in each view of a full board, painted by
// software: at most 8 ms are to go by. In the pair both ways to reach the target are searched.

#include "benchmarks/OffscreenApplication.h"
#include "tests/ui/Desk.h"
#include "ui/contrast/ContrastWindow.h"

#include <benchmark/benchmark.h>

namespace tintra {
namespace {

void dragLightness(benchmark::State& run) {
    bench::offscreenApplication();
    test::Desk desk;
    auto& board = desk.models.contrast();
    for (std::size_t i = 0; i < ContrastBoard::kCapacity; ++i)
        board.send("Colour " + std::to_string(i), test::Desk::colour(i));
    board.mode = static_cast<ContrastBoard::Mode>(run.range(0));
    ContrastWindow window(desk.ui);
    test::open(window, {1080, 760});
    const auto text = *board.textID();
    int step = 0;
    for (auto _ : run) {
        const auto grey = (step++ % 200 + 20) / 255.0;
        board.replace(text, {grey, grey / 2, grey, 1});
        QCoreApplication::processEvents();
    }
    run.SetLabel(std::string(rawValue(board.mode.value())));
}
BENCHMARK(dragLightness)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tintra
