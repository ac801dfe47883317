// Where a palette window stands, how large it is, and its folding into a strip; and what is dropped
// on it as a whole.

#include "state/Models.h"
#include "ui/actions/Menus.h"
#include "ui/frame/WindowFrame.h"
#include "ui/palette/FileDrops.h"
#include "ui/palette/PaletteWindowParts.h"
#include "ui/palette/StripCells.h"
#include "ui/shared/ColourMime.h"

#include <QDropEvent>
#include <QMenu>
#include <QScreen>
#include <QWindow>
#include <algorithm>

namespace tintra {
namespace {

constexpr QSize kUsual(960, 600);

} // namespace

void PaletteWindow::restoreFrame() {
    parts_->isPlacing = true;
    const auto& pending = state_.pendingFrame.value();
    const auto& kept = pending ? pending : state_.frame.value();
    if (kept)
        setGeometry(onScreen(rectOf(*kept)));
    else
        resize(kUsual);
    state_.pendingFrame = std::nullopt;
    parts_->isPlacing = false;
}

void PaletteWindow::takeModeSize() {
    const auto size = state_.windowSize.value();
    if (size.width < 1 || size.height < 1 || isMaximized() || parts_->isFolded) return;
    parts_->isPlacing = true;
    resize(rectOf({0, 0, size.width, size.height}).size() + QSize(parts_->grownBy, 0));
    parts_->isPlacing = false;
}

void PaletteWindow::growForEditor() {
    auto& parts = *parts_;
    const bool edits = state_.editorBuffer.value().has_value();
    if (parts.isFolded || isMaximized() || isFullScreen()) return;
    if (edits && parts.grownBy == 0 && width() >= PaletteBody::kOverlayBelow) {
        const auto* on = screen();
        const auto by = parts.body->editorWidth();
        if (!on || width() + by > on->availableGeometry().width()) return;
        parts.isPlacing = true;
        parts.grownBy = by;
        const auto frame = QRect(pos(), size() + QSize(by, 0));
        setGeometry(isVisible() ? onScreen(frame.translated(geometry().topLeft() - pos())) : frame);
        parts.isPlacing = false;
    } else if (!edits && parts.grownBy > 0) {
        parts.isPlacing = true;
        resize(std::max(minimumWidth(), width() - std::exchange(parts.grownBy, 0)), height());
        parts.isPlacing = false;
    }
}

void PaletteWindow::keepFrame() {
    const auto& parts = *parts_;
    if (parts.isFolded || parts.isPlacing || !isVisible() || isMaximized() || isFullScreen() ||
        isMinimized())
        return;
    const auto now = storedFrame(geometry().adjusted(0, 0, -parts.grownBy, 0));
    state_.frame = now;
    auto sizes = state_.modeSizes.value();
    sizes[state_.mode.value()] = {now.width, now.height};
    state_.modeSizes = std::move(sizes);
}

void PaletteWindow::syncCollapsed() {
    auto& parts = *parts_;
    const bool folds = state_.isCollapsed;
    if (folds == parts.isFolded) return;
    parts.isPlacing = true;
    if (folds && !parts.strip) {
        parts.strip = new CollapsedStrip(ui(), state_, this);
        parts.strip->cells().contextMenu = [this](QPoint at) {
            popUp(at, [this](QMenu& menu) { fillStripMenu(menu, context()); });
        };
    }
    parts.isFolded = folds;
    parts.unfolded->setVisible(!folds);
    parts.strip->setVisible(folds);
    setFlagInPlace(Qt::FramelessWindowHint, folds);
    if (folds) {
        resizeStrip();
    } else {
        setMinimumSize(240, 180);
        restoreFrame();
    }
    auto* const canvas = folds ? static_cast<Canvas*>(&parts.strip->cells()) : parts.body->main();
    canvas->setFocus(Qt::OtherFocusReason);
    parts.isPlacing = false;
}

// QWidget would hide the window and show it again, which loses the focus and, with some window
// managers, the knowledge of where it is.
void PaletteWindow::setFlagInPlace(Qt::WindowType flag, bool on) {
    if (!windowHandle()) {
        setWindowFlag(flag, on);
        return;
    }
    overrideWindowFlags(windowFlags().setFlag(flag, on));
    windowHandle()->setFlag(flag, on);
}

void PaletteWindow::resizeStrip() {
    if (!parts_->isFolded) return;
    setMinimumSize(parts_->strip->minimumSizeHint());
    resize(parts_->strip->sizeHint());
    parts_->strip->setGeometry(rect());
}

void PaletteWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (parts_->isFolded) {
        parts_->strip->setGeometry(rect());
        return;
    }
    syncPanels();
    keepFrame();
}

void PaletteWindow::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    keepFrame();
}

void PaletteWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!isUnderstood(*event->mimeData())) return;
    state_.fileIsOver = true;
    event->acceptProposedAction();
}

void PaletteWindow::dragMoveEvent(QDragMoveEvent* event) {
    const bool refused = refusesColour(state_, *event);
    state_.fileIsOver = !refused;
    if (!refused) return event->acceptProposedAction();
    // The cursor says no, but the drop is let come, to be told why.
    event->setDropAction(Qt::IgnoreAction);
    event->accept();
}

void PaletteWindow::dragLeaveEvent(QDragLeaveEvent*) {
    state_.fileIsOver = false;
}

void PaletteWindow::dropEvent(QDropEvent* event) {
    state_.fileIsOver = false;
    const auto drop = dropped(*event->mimeData());
    event->acceptProposedAction();
    if (drop.colour)
        receiveColour(ui(), state_, *drop.colour, state_.swatches().size(), asksToMove(*event));
    else
        receiveFiles(ui(), state_, drop, asksToAdd(*event));
}

} // namespace tintra
