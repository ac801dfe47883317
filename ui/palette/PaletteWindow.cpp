#include "ui/palette/PaletteWindow.h"

#include "platform/Services.h"
#include "state/Models.h"
#include "ui/actions/Shortcuts.h"
#include "ui/palette/BandsCanvas.h"
#include "ui/palette/EmptyState.h"
#include "ui/palette/PaletteWindowParts.h"
#include "ui/palette/StripCells.h"
#include "ui/program/Windows.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QApplication>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QDrag>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QVBoxLayout>
#include <algorithm>

namespace tintra {
namespace {

constexpr QSize kLeast(240, 180);

/// The first widget within a region that the Tab key comes to; null for none.
QWidget* firstStop(QWidget* region) {
    const auto takes = [](const QWidget* widget) {
        return widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus);
    };
    if (takes(region)) return region;
    for (auto* next = region->nextInFocusChain(); next != region; next = next->nextInFocusChain())
        if (region->isAncestorOf(next) && takes(next)) return next;
    return nullptr;
}

} // namespace

PaletteWindow::PaletteWindow(Ui& ui, AppState& state)
    : ui_(ui), state_(state), parts_(std::make_unique<Parts>()) {
    setMinimumSize(kLeast);
    setAcceptDrops(true);
    assemble();
    subscribe();
    installShortcuts(*this, [this] { return context(); });
    syncTitle();
    syncPanels();
    restoreFrame();
    syncOnTop();
    parts_->body->main()->setFocus();
    syncCollapsed();
}

PaletteWindow::~PaletteWindow() = default;

ActionContext PaletteWindow::context() {
    return {ui_, this};
}

void PaletteWindow::assemble() {
    auto& parts = *parts_;
    const ContextOf contextNow = [this] { return context(); };
    parts.unfolded = new QWidget(this);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins({});
    outer->addWidget(parts.unfolded);
    auto* column = new QVBoxLayout(parts.unfolded);
    column->setContentsMargins({});
    column->setSpacing(0);
    // The order is that of the Tab key.
    parts.menuBar = new CalledMenuBar(parts.unfolded);
    fillMenuBar(*parts.menuBar, contextNow);
    parts.menuBar->followMenus();
    parts.toolBar = new PaletteToolBar(ui_, state_, contextNow, parts.unfolded);
    parts.seedRow = new SeedRow(ui_, state_, parts.unfolded);
    parts.body = new PaletteBody(ui_, state_, parts.unfolded);
    parts.pictureBar = new PictureBar(ui_, state_, parts.unfolded);
    parts.foot = new PaletteFoot(ui_, state_, contextNow, parts.unfolded);
    for (auto* line : std::initializer_list<QWidget*>{parts.menuBar, parts.toolBar, parts.seedRow})
        column->addWidget(line);
    column->addWidget(parts.body, 1);
    column->addWidget(parts.pictureBar);
    column->addWidget(parts.foot);
    parts.notices = new NoticeBar(ui_.theme, ui_.services.mainLoop, parts.body);
    connectBody();
}

void PaletteWindow::popUp(QPoint at, void (*fill)(QMenu&, const ActionContext&)) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fill(*menu, context());
    menu->popup(at);
}

void PaletteWindow::connectBody() {
    auto& body = *parts_->body;
    body.targetChanged = [this] { parts_->foot->sync(); };
    body.empty().typeOrPaste = [this] { showPasteSheet(); };
    body.bands().fillMenu = [this](QMenu& menu) { fillSwatchMenu(menu, context()); };
    body.swatches().contextMenu = [this](QPoint at, bool onSwatch) {
        popUp(at, onSwatch ? fillSwatchMenu : fillCanvasMenu);
    };
    body.swatches().moving = [this](auto move) { parts_->foot->setMove(move); };
}

void PaletteWindow::subscribe() {
    auto& all = parts_->subscriptions;
    all.add(state_.attachment(), [this] {
        syncTitle();
        parts_->body->setDisplay(display());
    });
    all.add(state_.paletteIsDirty(), [this] { syncTitle(); });
    all.add(state_.mode, [this] { syncPanels(); });
    all.add(state_.isPictureWindowOpen, [this] { syncPanels(); });
    all.add(state_.imageSource, [this] { syncPanels(); });
    all.add(state_.compactOrientation, [this] { resizeStrip(); });
    all.add(state_.isCollapsed, [this] { syncCollapsed(); });
    all.add(state_.editorBuffer, [this] { growForEditor(); });
    all.add(state_.windowSize, [this] { takeModeSize(); });
    auto& preferences = ui_.models.preferences();
    all.add(preferences.compactOrientation, [this] { resizeStrip(); });
    all.add(preferences.alwaysOnTop, [this] { syncOnTop(); });
    all.add(preferences.paletteViews, [this] { parts_->body->setDisplay(display()); });
    all.add(ui_.theme.version(), [this] { syncPanels(); });
}

void PaletteWindow::syncTitle() {
    auto name = oneLine(state_.title());
    // The mark of unsaved changes is not to be found in a name.
    name.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
    setWindowTitle(name + QStringLiteral("[*] — Tintra"));
    setWindowModified(state_.paletteIsDirty());
}

void PaletteWindow::syncPanels() {
    constexpr int kToolsBelow = 280;
    auto& parts = *parts_;
    const bool narrow = width() < kToolsBelow;
    parts.toolBar->setVisible(!narrow);
    parts.foot->setCompact(narrow);
    parts.seedRow->setVisible(state_.mode.value() != HarmonyMode::paletteBuilder);
    const bool barHasFocus = parts.pictureBar->isAncestorOf(QApplication::focusWidget());
    parts.pictureBar->setVisible(state_.isPictureWindowOpen && state_.imageSource.value().picture);
    if (barHasFocus && parts.pictureBar->isHidden())
        parts.body->main()->setFocus(Qt::PopupFocusReason);
    parts.body->setDisplay(display());
}

void PaletteWindow::syncOnTop() {
    const bool wanted = ui_.models.preferences().alwaysOnTop;
    if (windowFlags().testFlag(Qt::WindowStaysOnTopHint) == wanted) return;
    setFlagInPlace(Qt::WindowStaysOnTopHint, wanted);
}

NoticeBar& PaletteWindow::notices() const {
    return *parts_->notices;
}

std::optional<PaletteWindow::Target> PaletteWindow::target() const {
    if (state_.mode.value() != HarmonyMode::paletteBuilder) {
        if (!parts_->isFolded) return parts_->body->bands().target();
        const auto colour = parts_->strip->cells().current();
        return colour ? std::optional(Target{*colour, std::nullopt, std::nullopt}) : std::nullopt;
    }
    const auto at = state_.selectedSwatch.value();
    if (!at || *at >= state_.swatches().size()) return std::nullopt;
    return Target{parts_->body->swatches().colorAt(*at), state_.swatches()[*at].name, *at};
}

PaletteDisplay PaletteWindow::display() const {
    const auto& views = ui_.models.preferences().paletteViews.value();
    const auto kept = views.find(state_.displayKey());
    return kept == views.end() ? PaletteDisplay::columns : kept->second;
}

void PaletteWindow::setDisplay(PaletteDisplay display) {
    auto views = ui_.models.preferences().paletteViews.value();
    views[state_.displayKey()] = display;
    ui_.models.preferences().paletteViews = std::move(views);
}

void PaletteWindow::showPasteSheet() {
    if (!parts_->pasteSheet) parts_->pasteSheet = new PasteSheet(ui_, state_, this);
    parts_->pasteSheet->present();
}

void PaletteWindow::showExport() {
    state_.saveAs();
}

void PaletteWindow::beginRename() {
    const auto on = target();
    if (on && on->swatch) parts_->body->swatches().beginRename(*on->swatch);
}

void PaletteWindow::setPeeking(bool peeks) {
    parts_->body->swatches().setPeeking(peeks);
}

bool PaletteWindow::showsMenuBar() const {
    return parts_->menuBar->isPinned();
}

void PaletteWindow::toggleMenuBar() {
    parts_->menuBar->setPinned(!parts_->menuBar->isPinned());
}

void PaletteWindow::openMenuBar() {
    // A strip has no room for a bar.
    if (parts_->isFolded) return showContextMenu();
    parts_->menuBar->call();
}

std::vector<QWidget*> PaletteWindow::regions() const {
    const auto& parts = *parts_;
    std::vector<QWidget*> shown;
    for (auto* region : std::initializer_list<QWidget*>{
             parts.strip, parts.toolBar, parts.seedRow, parts.body->picture(), parts.body->main(),
             parts.body->editor(), parts.pictureBar, parts.foot})
        if (region && region->isVisible() && firstStop(region)) shown.push_back(region);
    return shown;
}

void PaletteWindow::focusRegion(int by) {
    const auto all = regions();
    if (all.empty()) return;
    const auto* focus = QApplication::focusWidget();
    const auto here = std::ranges::find_if(all, [focus](const QWidget* region) {
        return focus && (region == focus || region->isAncestorOf(focus));
    });
    const auto count = static_cast<std::ptrdiff_t>(all.size());
    auto next = here == all.end() ? 0 : (here - all.begin() + by + count) % count;
    firstStop(all[static_cast<std::size_t>(next)])->setFocus(Qt::TabFocusReason);
}

void PaletteWindow::showContextMenu() {
    auto* focus = QApplication::focusWidget();
    if (!focus || focus->window() != this) return;
    const auto middle = focus->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, middle, focus->mapToGlobal(middle));
    QApplication::sendEvent(focus, &event);
}

bool PaletteWindow::isOnCanvas() const {
    auto* focus = QApplication::focusWidget();
    return !focus || focus == this || dynamic_cast<Canvas*>(focus);
}

void PaletteWindow::closeNow() {
    parts_->isClosing = true;
    // What is dragged belongs to the canvas, which goes.
    QDrag::cancel();
    close();
}

void PaletteWindow::closeEvent(QCloseEvent* event) {
    event->setAccepted(parts_->isClosing);
    if (parts_->isClosing) return;
    finishTyping();
    ui_.windows.closePalette(state_.id());
}

void PaletteWindow::finishTyping() {
    // A field takes what was typed when it loses the keyboard.
    if (qobject_cast<QLineEdit*>(focusWidget()))
        parts_->body->main()->setFocus(Qt::OtherFocusReason);
}

void PaletteWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        ui_.models.workspaces().becameKey(state_.id());
        ui_.models.vision().front = state_.place();
    }
    if (event->type() == QEvent::WindowStateChange) keepFrame();
    QWidget::changeEvent(event);
}

void PaletteWindow::keyPressEvent(QKeyEvent* event) {
    parts_->altAlone = event->key() == Qt::Key_Alt && !event->isAutoRepeat();
    if (isOnCanvas() && performCanvasKey(*event, context())) return;
    QWidget::keyPressEvent(event);
}

void PaletteWindow::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Alt && std::exchange(parts_->altAlone, false)) openMenuBar();
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) setPeeking(false);
    QWidget::keyReleaseEvent(event);
}

} // namespace tintra
