// What a frame of a palette window with 256 colours costs, 1920 by 1080 px, painted by software: at
// 60 frames a second there are 16 ms, of which the compositor needs some.

#include "benchmarks/OffscreenApplication.h"
#include "state/Preferences.h"
#include "tests/ui/Desk.h"
#include "ui/palette/PaletteCanvas.h"
#include "ui/palette/PaletteWindow.h"
#include "ui/shared/ColourMime.h"

#include <benchmark/benchmark.h>

#include <QScrollArea>
#include <QScrollBar>

namespace tintra {
namespace {

constexpr QSize kScreen(1920, 1080);
enum Shape { columns, tiles, rows };

/// A window full of colours, half of them with names of their own, some translucent.
class FullWindow {
public:
    explicit FullWindow(benchmark::State& run, int most = 256) {
        bench::offscreenApplication();
        desk_ = std::make_unique<test::Desk>();
        auto& state = desk_->stateWith(static_cast<std::size_t>(most));
        for (std::size_t i = 0; i < state.swatches().size(); i += 2)
            state.renameSwatch(i, "Name of the colour " + std::to_string(i));
        window_ = std::make_unique<PaletteWindow>(desk_->ui, state);
        const auto shape = run.range(0);
        if (shape == tiles) window_->setDisplay(PaletteDisplay::tiles);
        test::open(*window_, shape == rows ? QSize(279, kScreen.height()) : kScreen);
        canvas_ = test::child<PaletteCanvas>(*window_);
        desk_->settle();
        run.SetLabel(shape == columns ? "columns" : shape == tiles ? "tiles" : "rows");
    }
    ~FullWindow() {
        window_.reset();
        desk_.reset();
    }

    void frame() { QCoreApplication::processEvents(); }

    test::Desk& desk() { return *desk_; }
    PaletteWindow& window() { return *window_; }
    PaletteCanvas& canvas() { return *canvas_; }
    QScrollBar& scrollBar() {
        return *qobject_cast<QScrollArea*>(canvas_->parentWidget()->parentWidget())
                    ->verticalScrollBar();
    }

private:
    std::unique_ptr<test::Desk> desk_;
    std::unique_ptr<PaletteWindow> window_;
    PaletteCanvas* canvas_ = nullptr;
};

void everything(benchmark::State& run) {
    FullWindow full(run);
    for (auto _ : run) {
        full.canvas().update();
        full.frame();
    }
}

void resizing(benchmark::State& run) {
    FullWindow full(run);
    const auto size = full.window().size();
    int by = 0;
    for (auto _ : run) {
        by = (by + 1) % 40;
        full.window().resize(size - QSize(run.range(0) == rows ? 0 : by, by));
        full.frame();
    }
}

void scrolling(benchmark::State& run) {
    FullWindow full(run);
    if (run.range(0) == columns) full.window().resize(kScreen.width() / 2, kScreen.height() / 2);
    full.frame();
    auto& bar = full.scrollBar();
    int at = 0, step = 40;
    for (auto _ : run) {
        if (at + step > bar.maximum() || at + step < 0) step = -step;
        bar.setValue(at += step);
        full.frame();
    }
}

/// A colour is dragged over the canvas: the bar that shows where it would go follows.
void dragging(benchmark::State& run) {
    FullWindow full(run, 255);
    const auto mime =
        mimeOf(Drag{{0.5, 0.25, 0.125, 1}, std::nullopt, DragOfBand{}}, QStringLiteral("#804020"));
    auto& canvas = full.canvas();
    const auto visible = canvas.visibleRegion().boundingRect();
    QDragEnterEvent enter(visible.center(), Qt::CopyAction, mime.get(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(&canvas, &enter);
    int step = 0;
    for (auto _ : run) {
        step += 17;
        const QPoint at(visible.left() + 20 + step % (visible.width() - 40),
                        visible.top() + 20 + step / 7 % (visible.height() - 40));
        QDragMoveEvent move(at, Qt::CopyAction, mime.get(), Qt::LeftButton, {});
        QCoreApplication::sendEvent(&canvas, &move);
        full.frame();
    }
}

/// A slider of the editor is dragged: the swatch in the palette and the editor follow.
void sliding(benchmark::State& run) {
    FullWindow full(run);
    auto& state = full.window().state();
    state.editSwatch(3);
    full.frame();
    double hue = 0;
    for (auto _ : run) {
        hue += 0.01;
        state.editorBuffer = EditorBuffer{state.swatches()[3].id,
                                          WashColor::fromRgb(rgbFromHsb({hue, 0.7, 0.8}), 1)};
        full.frame();
    }
}

BENCHMARK(everything)->DenseRange(columns, rows)->Unit(benchmark::kMillisecond);
BENCHMARK(resizing)->DenseRange(columns, rows)->Unit(benchmark::kMillisecond);
BENCHMARK(scrolling)->DenseRange(columns, rows)->Unit(benchmark::kMillisecond);
BENCHMARK(dragging)->DenseRange(columns, rows)->Unit(benchmark::kMillisecond);
BENCHMARK(sliding)->DenseRange(columns, rows)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tintra
