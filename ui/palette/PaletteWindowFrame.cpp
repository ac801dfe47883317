// Where a palette window stands, how large it is, and its folding into a strip; and what is dropped
// on it as a whole.

#include "state/Models.h"
#include "ui/palette/FileDrops.h"
#include "ui/palette/PaletteWindowParts.h"
#include "ui/palette/StripCells.h"
#include "ui/shared/ColourMime.h"

#include <QDropEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <cmath>

namespace tintra {
namespace {

constexpr QSize kUsual(960, 600);

int rounded(double length) {
    constexpr double kMost = 100'000;
    return static_cast<int>(std::lround(std::clamp(length, -kMost, kMost)));
}

QRect rectOf(const StoredFrame& frame) {
    return {rounded(frame.x), rounded(frame.y), rounded(frame.width), rounded(frame.height)};
}

/// Brought onto the screen where it stood, or the first one, when that has gone.
QRect onScreen(QRect frame) {
    const auto* screen = QGuiApplication::screenAt(frame.center());
    if (!screen) screen = QGuiApplication::primaryScreen();
    if (!screen) return frame;
    const auto room = screen->availableGeometry();
    frame.setSize(frame.size().boundedTo(room.size()));
    frame.moveLeft(std::clamp(frame.left(), room.left(), room.right() + 1 - frame.width()));
    frame.moveTop(std::clamp(frame.top(), room.top(), room.bottom() + 1 - frame.height()));
    return frame;
}

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
    resize(rounded(size.width) + parts_->grownBy, rounded(size.height));
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
    const auto now = geometry();
    const StoredSize size{static_cast<double>(now.width() - parts.grownBy),
                          static_cast<double>(now.height())};
    state_.frame = StoredFrame{static_cast<double>(now.x()), static_cast<double>(now.y()),
                               size.width, size.height};
    auto sizes = state_.modeSizes.value();
    sizes[state_.mode.value()] = size;
    state_.modeSizes = std::move(sizes);
}

void PaletteWindow::syncCollapsed() {
    auto& parts = *parts_;
    const bool folds = state_.isCollapsed;
    if (folds == parts.isFolded) return;
    parts.isPlacing = true;
    if (folds && !parts.strip) {
        parts.strip = new CollapsedStrip(ui_, state_, this);
        parts.strip->cells().contextMenu = [this](QPoint at) { popUp(at, fillStripMenu); };
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
        receiveColour(ui_, state_, *drop.colour, state_.swatches().size(), asksToMove(*event));
    else
        receiveFiles(ui_, state_, drop, asksToAdd(*event));
}

} // namespace tintra
