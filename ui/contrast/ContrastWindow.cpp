#include "ui/contrast/ContrastWindow.h"

#include "state/Models.h"
#include "ui/frame/FactsLine.h"
#include "ui/frame/ToolLine.h"
#include "ui/shared/Text.h"

#include <QCloseEvent>

namespace tintra {

ContrastWindow::ContrastWindow(Ui& ui)
    : MainWindow(ui, WindowKind::contrast, {ToastWindow::contrast, {}}),
      tools_(new ToolLine(
          ui, [this] { return context(); }, this)),
      body_(new QWidget(this)), facts_(new FactsLine(ui, &ui.models.contrast().vision, this)) {
    setWindowTitle(worded("Contrast — Tintra"));
    setMinimumSize(720, 520);
    assemble(tools_, body_, facts_);
    keepFrame("NSWindow Frame contrast", {1080, 760});
}

ActionContext ContrastWindow::context() {
    return {.ui = ui(), .window = this, .contrast = this};
}

std::vector<QWidget*> ContrastWindow::regions() const {
    return {tools_, body_, facts_};
}

void ContrastWindow::showEvent(QShowEvent* event) {
    ui().models.contrast().isWindowOpen = true;
    MainWindow::showEvent(event);
}

void ContrastWindow::closeEvent(QCloseEvent* event) {
    ui().models.contrast().isWindowOpen = false;
    MainWindow::closeEvent(event);
}

} // namespace tintra
