#include "ui/library/LibraryWindow.h"

#include "state/Models.h"
#include "ui/actions/Menus.h"
#include "ui/library/LibraryFoot.h"
#include "ui/library/LibraryTools.h"
#include "ui/shared/ColourMime.h"
#include "ui/shared/LocationMenu.h"
#include "ui/shared/Text.h"

#include <QCloseEvent>
#include <QCursor>
#include <QDropEvent>
#include <QMimeData>

namespace tintra {
namespace {

/// Below this height the foot gives its room to the palettes; px.
constexpr int kFootFrom = 400;

} // namespace

LibraryWindow::LibraryWindow(Ui& ui)
    : MainWindow(ui, WindowKind::library, {ToastWindow::library, {}}), model_(ui),
      files_(ui.services, ui.models.preferences(), ui.models.store(), ui.models.workspaces(),
             place()),
      locations_(ui.services, ui.models.preferences(), place()),
      tools_(new LibraryTools(
          ui, model_, [this] { return context(); }, this)),
      canvas_(new LibraryCanvas(ui, model_, this)), foot_(new LibraryFoot(ui, model_, this)) {
    setWindowTitle(worded("Library — Tintra"));
    setMinimumSize(520, 360);
    setAcceptDrops(true);
    assemble(tools_, canvas_, foot_);
    connectTools();
    connectCanvas();
    subscriptions_.add(ui.models.preferences().libraryFindRequested, [this] { takeFindRequest(); });
    canvas_->setFocus(Qt::OtherFocusReason);
    keepFrame("NSWindow Frame library", {960, 680});
    takeFindRequest();
}

LibraryWindow::~LibraryWindow() {
    // They show the model, which goes before the window's other children.
    for (auto* part : std::initializer_list<QWidget*>{tools_, canvas_, foot_})
        delete part;
}

void LibraryWindow::connectTools() {
    tools_->leave = [this] { canvas_->takeKeyboard(); };
    tools_->open = [this] { perform(ActionId::openListed, context()); };
    foot_->addFolder = [this] { locations_.add(); };
}

void LibraryWindow::connectCanvas() {
    canvas_->act = [this](LibraryPanel::Action action) { act(action); };
    canvas_->answer = [this](LibraryNote::About about, std::optional<Uuid> location) {
        answer(about, location);
    };
    canvas_->contextMenu = [this](LibraryCanvas::MenuOf of, QPoint at) { openMenu(of, at); };
}

ActionContext LibraryWindow::context() {
    return {.ui = ui(), .window = this, .library = this};
}

std::optional<ActionTarget> LibraryWindow::target() const {
    const auto* swatch = canvas_->currentSwatch();
    if (!swatch) return std::nullopt;
    return ActionTarget{swatch->color, swatch->name, {}};
}

std::vector<QWidget*> LibraryWindow::regions() const {
    return {tools_, canvas_, foot_};
}

void LibraryWindow::act(LibraryPanel::Action action) {
    using enum ActionId;
    switch (action) {
    case LibraryPanel::open:
        perform(openListed, context());
        return;
    case LibraryPanel::openInNewWindow:
        perform(openListedInNewWindow, context());
        return;
    case LibraryPanel::install:
        perform(installListed, context());
        return;
    case LibraryPanel::installFor:
        popUp(QCursor::pos(),
              [this](QMenu& menu) { actionRow(installListedFor).fill(menu, context()); });
        return;
    case LibraryPanel::duplicate:
        perform(duplicateListed, context());
        return;
    case LibraryPanel::reveal:
        perform(revealListed, context());
        return;
    case LibraryPanel::trash:
        perform(trashListed, context());
        return;
    }
}

void LibraryWindow::answer(LibraryNote::About about, const std::optional<Uuid>& location) {
    switch (about) {
    case LibraryNote::About::noFolders:
        locations_.add();
        return;
    case LibraryNote::About::offline:
        if (location) locations_.rechoose(*location);
        return;
    case LibraryNote::About::nothingFound:
        if (const auto& wider = model_.listing().wider)
            ui().models.preferences().libraryMatch = ColourMatch(wider->match);
        return;
    case LibraryNote::About::noPalettes:
        return;
    }
}

void LibraryWindow::openMenu(LibraryCanvas::MenuOf of, QPoint at) {
    popUp(at, [this, of](QMenu& menu) {
        switch (of) {
        case LibraryCanvas::MenuOf::nothing:
            fillListedCanvasMenu(menu, context());
            return;
        case LibraryCanvas::MenuOf::palette:
            fillListedMenu(menu, context());
            return;
        case LibraryCanvas::MenuOf::swatch:
            fillListedSwatchMenu(menu, context());
            return;
        case LibraryCanvas::MenuOf::group:
            if (const auto* group = canvas_->currentGroup(); group && group->location)
                fillLocationMenu(menu, locations_, *group->location);
            return;
        }
    });
}

void LibraryWindow::takeFindRequest() {
    auto& requested = ui().models.preferences().libraryFindRequested;
    if (!requested.value()) return;
    requested = false;
    tools_->find();
}

void LibraryWindow::resizeEvent(QResizeEvent* event) {
    foot_->setVisible(height() >= kFootFrom);
    MainWindow::resizeEvent(event);
}

void LibraryWindow::showEvent(QShowEvent* event) {
    ui().models.workspaces().isLibraryWindowOpen = true;
    MainWindow::showEvent(event);
}

void LibraryWindow::closeEvent(QCloseEvent* event) {
    ui().models.workspaces().isLibraryWindowOpen = false;
    MainWindow::closeEvent(event);
}

void LibraryWindow::dragEnterEvent(QDragEnterEvent* event) {
    // What is dragged within the program is never a folder.
    const bool isTaken = event->mimeData()->hasUrls() && !event->source();
    canvas_->showDrop(isTaken);
    if (!isTaken) return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void LibraryWindow::dragLeaveEvent(QDragLeaveEvent*) {
    canvas_->showDrop(false);
}

void LibraryWindow::dropEvent(QDropEvent* event) {
    canvas_->showDrop(false);
    event->setDropAction(Qt::CopyAction);
    event->accept();
    locations_.addFolders(dropped(*event->mimeData()).files);
}

} // namespace tintra
