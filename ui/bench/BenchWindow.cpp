#include "ui/bench/BenchWindow.h"

#include "state/Models.h"
#include "ui/frame/FactsLine.h"
#include "ui/frame/ToolLine.h"
#include "ui/shared/Text.h"

#include <QCloseEvent>

namespace tintra {

BenchWindow::BenchWindow(Ui& ui)
    : MainWindow(ui, WindowKind::bench, {ToastWindow::bench, {}}),
      tools_(new ToolLine(
          ui, [this] { return context(); }, this)),
      body_(new QWidget(this)), facts_(new FactsLine(ui, &ui.models.bench().vision, this)) {
    setWindowTitle(worded("Bench — Tintra"));
    setMinimumSize(560, 400);
    assemble(tools_, body_, facts_);
    auto& bench = ui.models.bench();
    keepFrame(bench.frame.value(), {1040, 640},
              [&bench](const StoredFrame& frame) { bench.frame = frame; });
}

ActionContext BenchWindow::context() {
    return {.ui = ui(), .window = this, .bench = this};
}

std::vector<QWidget*> BenchWindow::regions() const {
    return {tools_, body_, facts_};
}

void BenchWindow::showEvent(QShowEvent* event) {
    ui().models.bench().isWindowOpen = true;
    MainWindow::showEvent(event);
}

void BenchWindow::closeEvent(QCloseEvent* event) {
    ui().models.bench().isWindowOpen = false;
    MainWindow::closeEvent(event);
}

} // namespace tintra
