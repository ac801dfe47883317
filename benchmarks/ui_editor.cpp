#include "benchmarks/OffscreenApplication.h"
#include "state/Preferences.h"
#include "tests/ui/Desk.h"
#include "ui/editor/EditorPanel.h"

#include <benchmark/benchmark.h>

namespace tintra {
namespace {

/// A step of a drag of the hue, which changes every gradient of the panel, until it is painted.
void dragHue(benchmark::State& run) {
    bench::offscreenApplication();
    test::Desk desk;
    desk.models.preferences().editorSpace = static_cast<EditorSpace>(run.range(0));
    auto& state = desk.stateWith(1);
    state.editSwatch(0);
    EditorPanel panel(desk.ui, state, nullptr);
    test::open(panel, {312, 700});
    double hue = 0;
    for (auto _ : run) {
        hue += 0.01;
        const auto color = WashColor::fromRgb(rgbFromHsb({hue, 0.7, 0.8}), 1);
        state.editorBuffer = EditorBuffer{state.swatches()[0].id, color};
        QCoreApplication::processEvents();
    }
    run.SetLabel(editorSpace(desk.models.preferences().editorSpace).title);
}
BENCHMARK(dragHue)->DenseRange(0, 5)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tintra
