#include "ui/library/LibraryWindow.h"

#include "state/Models.h"
#include "ui/frame/FactsLine.h"
#include "ui/frame/ToolLine.h"
#include "ui/shared/Text.h"

#include <QCloseEvent>

namespace tintra {

LibraryWindow::LibraryWindow(Ui& ui)
    : MainWindow(ui, WindowKind::library, {ToastWindow::library, {}}),
      tools_(new ToolLine(
          ui, [this] { return context(); }, this)),
      body_(new QWidget(this)), facts_(new FactsLine(ui, nullptr, this)) {
    setWindowTitle(worded("Library — Tintra"));
    setMinimumSize(520, 360);
    assemble(tools_, body_, facts_);
    keepFrame("NSWindow Frame library", {960, 680});
}

ActionContext LibraryWindow::context() {
    return {.ui = ui(), .window = this, .library = this};
}

std::vector<QWidget*> LibraryWindow::regions() const {
    return {tools_, body_, facts_};
}

void LibraryWindow::showEvent(QShowEvent* event) {
    ui().models.workspaces().isLibraryWindowOpen = true;
    MainWindow::showEvent(event);
}

void LibraryWindow::closeEvent(QCloseEvent* event) {
    ui().models.workspaces().isLibraryWindowOpen = false;
    MainWindow::closeEvent(event);
}

} // namespace tintra
