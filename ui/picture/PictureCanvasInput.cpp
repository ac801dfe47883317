// How the pointer and the keyboard act on the pins.

#include "ui/picture/PictureCanvas.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <algorithm>

namespace tintra {
namespace {

constexpr double kGlass = 1.2; ///< seconds after the last key
constexpr int kFar = 10;       ///< times as far with Shift

/// The direction of an arrow key; nothing for another key.
std::optional<QPointF> direction(int key) {
    switch (key) {
    case Qt::Key_Left:
        return QPointF(-1, 0);
    case Qt::Key_Right:
        return QPointF(1, 0);
    case Qt::Key_Up:
        return QPointF(0, -1);
    case Qt::Key_Down:
        return QPointF(0, 1);
    default:
        return std::nullopt;
    }
}

} // namespace

// Moving

void PictureCanvas::move(std::size_t at, ImagePalette::Point to, bool isHeld) {
    moving_ = Moving{at, to, isHeld};
    relayout();
    state_.movePin(at, to);
}

/// The pin is shown where the model has it once that is where it was brought.
void PictureCanvas::letGo() {
    if (!moving_ || moving_->isHeld) return;
    const auto& there = state_.imageSource.value().found[moving_->pin].point;
    if (there.x == moving_->to.x && there.y == moving_->to.y) moving_.reset();
}

void PictureCanvas::mousePressEvent(QMouseEvent* event) {
    const auto item = itemAt(event->position());
    if (event->button() != Qt::LeftButton || !hasPicture()) {
        if (item >= 0) setFocused(item);
        return;
    }
    if (item < 0 && !pictureRect().contains(event->position())) return;
    pressed_ = Pressed{{}, event->position(), {}};
    if (item >= 0) {
        const auto& pressed = items()[static_cast<std::size_t>(item)];
        pressed_->pin = pressed.index;
        pressed_->offset = event->position() - pressed.rect.center();
    }
    setFocused(item);
}

void PictureCanvas::mouseMoveEvent(QMouseEvent* event) {
    Canvas::mouseMoveEvent(event);
    if (!pressed_ || !(event->buttons() & Qt::LeftButton)) return;
    const auto far = (event->position() - pressed_->at).manhattanLength();
    if (!pressed_->moves && far < QApplication::startDragDistance()) return;
    pressed_->moves = true;
    if (pressed_->pin) {
        setCursor(Qt::ClosedHandCursor);
        move(*pressed_->pin, toPicture(event->position() - pressed_->offset), true);
    } else {
        pressed_->at = toView(toPicture(event->position()));
        update();
    }
}

void PictureCanvas::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const auto pressed = std::exchange(pressed_, std::nullopt);
    if (moving_) moving_->isHeld = false;
    letGo();
    if (pressed && !pressed->pin) {
        crosshair_ = toPicture(pressed->at);
        state_.addPin(crosshair_);
    }
    hoverMoved(itemAt(event->position()), event->position());
    relayout();
}

void PictureCanvas::mouseDoubleClickEvent(QMouseEvent*) {
    // The first click has added a pin; the second has nothing to add.
}

void PictureCanvas::hoverMoved(int item, QPointF place) {
    if (item >= 0) {
        const auto& under = items()[static_cast<std::size_t>(item)];
        setCursor(Qt::OpenHandCursor);
        setToolTip(QStringLiteral("%1\n%2").arg(under.name, under.value));
        return;
    }
    setToolTip({});
    setCursor(pictureRect().contains(place) ? Qt::CrossCursor : Qt::ArrowCursor);
}

void PictureCanvas::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const auto item = byKey ? focused() : itemAt(event->pos());
    if (item < 0) {
        event->ignore();
        return;
    }
    const auto& one = items()[static_cast<std::size_t>(item)];
    const auto at = one.index;
    const auto pinned = state_.imageSource.value().found[at];
    const auto swatch = marks_[at].swatch;
    const auto name = swatch ? state_.swatches()[*swatch].name : std::nullopt;
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(worded("Copy"), this,
                    [this, pinned, name] { state_.copy(pinned.color, name); });
    menu->addAction(worded("Remove"), this, [this, pinned, at] {
        const auto& found = state_.imageSource.value().found;
        if (at < found.size() && found[at] == pinned) state_.removePin(at);
    });
    menu->popup(mapToGlobal(byKey ? one.rect.center().toPoint() : event->pos()));
}

// Keys

bool PictureCanvas::isOwnKey(const QKeyEvent& event) const {
    const auto others = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    if (others != Qt::NoModifier || !hasPicture()) return false;
    switch (event.key()) {
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Plus:
    case Qt::Key_Equal:
    case Qt::Key_Minus:
        return true;
    case Qt::Key_Escape:
        return pressed_.has_value();
    default:
        return direction(event.key()).has_value();
    }
}

bool PictureCanvas::event(QEvent* event) {
    const bool asks = event->type() == QEvent::ShortcutOverride;
    if (asks && isOwnKey(*static_cast<QKeyEvent*>(event))) event->accept();
    return Canvas::event(event);
}

void PictureCanvas::keyPressEvent(QKeyEvent* event) {
    if (!isOwnKey(*event)) {
        Canvas::keyPressEvent(event);
        return;
    }
    useKeyboard(true);
    const auto item = focused();
    if (const auto way = direction(event->key())) {
        nudge(*way * (event->modifiers().testFlag(Qt::ShiftModifier) ? kFar : 1));
        return;
    }
    switch (event->key()) {
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        if (item >= 0) state_.removePin(items()[static_cast<std::size_t>(item)].index);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (item < 0) state_.addPin(crosshair_);
        break;
    case Qt::Key_Escape:
        pressed_.reset();
        update();
        break;
    default:
        askFor(event->key() == Qt::Key_Minus ? -1 : 1);
    }
}

/// By a pixel of the screen, or of the picture where those are larger.
void PictureCanvas::nudge(QPointF by) {
    if (pressed_) return;
    const auto full = state_.imageSource.value().picture->size();
    const auto step = std::max(1.0, full.width / pictureRect().width());
    const auto moved = [&](ImagePalette::Point from) {
        const auto within = [](double at, int side) { return std::clamp(at, 0.5, side - 0.5); };
        return ImagePalette::Point{within(from.x + by.x() * step, full.width),
                                   within(from.y + by.y() * step, full.height)};
    };
    const auto item = focused();
    if (item < 0) {
        crosshair_ = moved(crosshair_);
    } else {
        const auto at = items()[static_cast<std::size_t>(item)].index;
        move(at, moved(pointOf(at)), false);
    }
    showGlassBriefly();
}

void PictureCanvas::showGlassBriefly() {
    glass_ = ui_.services.mainLoop.after(kGlass, [this] {
        glass_.reset();
        update();
    });
    update();
}

void PictureCanvas::askFor(int more) {
    if (pressed_) return;
    const auto& source = state_.imageSource.value();
    if (more > 0 ? state_.canExtractMore() : state_.canExtractFewer())
        state_.reextract(source.count + more, source.emphasis);
}

int PictureCanvas::neighbour(int from, Qt::Key key) const {
    // Without a pin that has the focus, the crosshair has it.
    if (from < 0 || items().empty()) return -1;
    if (key == Qt::Key_Home) return 0;
    return key == Qt::Key_End ? static_cast<int>(items().size()) - 1 : from;
}

bool PictureCanvas::focusNextPrevChild(bool next) {
    const auto to = focused() + (next ? 1 : -1);
    if (to < -1 || to >= static_cast<int>(items().size())) return Canvas::focusNextPrevChild(next);
    useKeyboard(true);
    setFocused(to);
    glass_.reset();
    update();
    return true;
}

void PictureCanvas::focusMoved(int item) {
    if (item < 0) return;
    const auto swatch = marks_[items()[static_cast<std::size_t>(item)].index].swatch;
    if (!swatch) return;
    state_.selectedSwatch = swatch;
    state_.revealSwatch = swatch;
}

void PictureCanvas::focusInEvent(QFocusEvent* event) {
    if (event->reason() == Qt::TabFocusReason) setFocused(-1);
    if (event->reason() == Qt::BacktabFocusReason) setFocused(static_cast<int>(items().size()) - 1);
    Canvas::focusInEvent(event);
    update();
}

void PictureCanvas::focusOutEvent(QFocusEvent* event) {
    glass_.reset();
    Canvas::focusOutEvent(event);
    update();
}

} // namespace tintra
