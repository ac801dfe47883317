#include "ui/palette/PaletteWindow.h"

#include "platform/Clipboard.h"
#include "platform/Services.h"
#include "state/Models.h"
#include "ui/actions/Menus.h"
#include "ui/palette/BandsCanvas.h"
#include "ui/palette/EmptyState.h"
#include "ui/palette/FileDrops.h"
#include "ui/palette/PaletteWindowParts.h"
#include "ui/palette/StripCells.h"
#include "ui/program/Windows.h"
#include "ui/shared/ColourMime.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDrag>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QVBoxLayout>

namespace tintra {
namespace {

constexpr QSize kLeast(240, 180);

} // namespace

PaletteWindow::PaletteWindow(Ui& ui, AppState& state)
    : MainWindow(ui, WindowKind::palette, state.place()), state_(state),
      parts_(std::make_unique<Parts>()) {
    setMinimumSize(kLeast);
    setAcceptDrops(true);
    assemble();
    subscribe();
    syncTitle();
    syncPanels();
    restoreFrame();
    syncOnTop();
    parts_->body->main()->setFocus();
    syncCollapsed();
}

PaletteWindow::~PaletteWindow() = default;

ActionContext PaletteWindow::context() {
    return {.ui = ui(), .window = this, .palette = this};
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
    column->addWidget(makeMenuBar(parts.unfolded));
    parts.toolBar = new PaletteToolBar(ui(), state_, contextNow, parts.unfolded);
    parts.seedRow = new SeedRow(ui(), state_, parts.unfolded);
    parts.body = new PaletteBody(ui(), state_, parts.unfolded);
    parts.pictureBar = new PictureBar(ui(), state_, parts.unfolded);
    parts.foot = new PaletteFoot(ui(), state_, contextNow, parts.unfolded);
    for (auto* line : std::initializer_list<QWidget*>{parts.toolBar, parts.seedRow})
        column->addWidget(line);
    column->addWidget(parts.body, 1);
    column->addWidget(parts.pictureBar);
    column->addWidget(parts.foot);
    makeNotices(parts.body);
    connectBody();
}

void PaletteWindow::connectBody() {
    auto& body = *parts_->body;
    body.targetChanged = [this] { parts_->foot->sync(); };
    body.empty().typeOrPaste = [this] { showPasteSheet(); };
    body.bands().fillMenu = [this](QMenu& menu) { fillSwatchMenu(menu, context()); };
    body.swatches().contextMenu = [this](QPoint at, bool onSwatch) {
        popUp(at, [this, onSwatch](QMenu& menu) {
            (onSwatch ? fillSwatchMenu : fillCanvasMenu)(menu, context());
        });
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
    auto& preferences = ui().models.preferences();
    all.add(preferences.compactOrientation, [this] { resizeStrip(); });
    all.add(preferences.alwaysOnTop, [this] { syncOnTop(); });
    all.add(preferences.paletteViews, [this] { parts_->body->setDisplay(display()); });
    all.add(ui().theme.version(), [this] { syncPanels(); });
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
    const bool wanted = ui().models.preferences().alwaysOnTop;
    if (windowFlags().testFlag(Qt::WindowStaysOnTopHint) == wanted) return;
    setFlagInPlace(Qt::WindowStaysOnTopHint, wanted);
}

std::optional<ActionTarget> PaletteWindow::target() const {
    if (state_.mode.value() != HarmonyMode::paletteBuilder) {
        if (!parts_->isFolded) return parts_->body->bands().target();
        const auto colour = parts_->strip->cells().current();
        return colour ? std::optional(ActionTarget{*colour, std::nullopt, std::nullopt})
                      : std::nullopt;
    }
    const auto at = state_.selectedSwatch.value();
    if (!at || *at >= state_.swatches().size()) return std::nullopt;
    return ActionTarget{parts_->body->swatches().colorAt(*at), state_.swatches()[*at].name, *at};
}

void PaletteWindow::copy(std::optional<ColorFormat> as) {
    if (const auto on = target()) state_.copy(on->color, on->name, as);
}

std::optional<FrontCapabilities::Clears> PaletteWindow::clears() const {
    using Clears = FrontCapabilities::Clears;
    return state_.mode.value() == HarmonyMode::paletteBuilder ? Clears::palette : Clears::seeds;
}

void PaletteWindow::clear() {
    if (state_.mode.value() == HarmonyMode::paletteBuilder)
        state_.clearPalette();
    else
        state_.clearSeeds();
}

/// Text and colours are the models' to read; only files and pictures are taken from the desktop's
/// clipboard itself.
void PaletteWindow::pasteColours() {
    const auto held = ui().services.clipboard.content();
    if (!held.text.empty()) {
        receiveText(ui(), state_, held.text);
        return;
    }
    if (held.colour) {
        const auto& [r, g, b, a] = *held.colour;
        state_.addToPalette({r, g, b, a}, AppState::Duplicates::refuse);
        return;
    }
    const auto* mime = QApplication::clipboard()->mimeData();
    if (!mime) return;
    const auto found = dropped(*mime);
    if (!found.isEmpty() && !found.colour) receiveFiles(ui(), state_, found, false);
}

PaletteDisplay PaletteWindow::display() const {
    const auto& views = ui().models.preferences().paletteViews.value();
    const auto kept = views.find(state_.displayKey());
    return kept == views.end() ? PaletteDisplay::columns : kept->second;
}

void PaletteWindow::setDisplay(PaletteDisplay display) {
    auto views = ui().models.preferences().paletteViews.value();
    views[state_.displayKey()] = display;
    ui().models.preferences().paletteViews = std::move(views);
}

void PaletteWindow::showPasteSheet() {
    if (!parts_->pasteSheet) parts_->pasteSheet = new PasteSheet(ui(), pasteTarget(state_), this);
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

void PaletteWindow::openMenuBar() {
    // A strip has no room for a bar.
    if (parts_->isFolded) return showContextMenu();
    MainWindow::openMenuBar();
}

std::vector<QWidget*> PaletteWindow::regions() const {
    const auto& parts = *parts_;
    return {parts.strip,        parts.toolBar,        parts.seedRow,    parts.body->picture(),
            parts.body->main(), parts.body->editor(), parts.pictureBar, parts.foot};
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
    ui().windows.closePalette(state_.id());
}

void PaletteWindow::finishTyping() {
    // A field takes what was typed when it loses the keyboard.
    if (qobject_cast<QLineEdit*>(focusWidget()))
        parts_->body->main()->setFocus(Qt::OtherFocusReason);
}

void PaletteWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        ui().models.workspaces().becameKey(state_.id());
    if (event->type() == QEvent::WindowStateChange) keepFrame();
    MainWindow::changeEvent(event);
}

void PaletteWindow::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) setPeeking(false);
    MainWindow::keyReleaseEvent(event);
}

} // namespace tintra
