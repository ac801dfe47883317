// How the pointer and the keyboard act on the swatches.

#include "state/Models.h"
#include "ui/palette/PaletteCanvas.h"
#include "ui/shared/PlacedField.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>

namespace tintra {
namespace {

enum Button { copyButton, editButton, benchButton, contrastButton, removeButton };
constexpr std::size_t kButtonCount = 5;

} // namespace

std::optional<int> PaletteCanvas::buttonAt(int item, QPointF place) const {
    if (item < 0 || items()[static_cast<std::size_t>(item)].kind != swatch) return std::nullopt;
    const auto& one = items()[static_cast<std::size_t>(item)];
    if (!hasButtons(one)) return std::nullopt;
    const auto rects = ui_.painter.buttonRects(one.rect, stand_.shape, kButtonCount);
    for (std::size_t i = 0; i < rects.size(); ++i)
        if (rects[i].contains(place)) return static_cast<int>(i);
    return std::nullopt;
}

void PaletteCanvas::hoverMoved(int item, QPointF place) {
    const auto button = buttonAt(item, place).value_or(-1);
    if (button == hoveredButton_) return;
    hoveredButton_ = button;
    static constexpr std::array kTips{"Copy", "Edit Colour", "Put on the Bench, or take off",
                                      "Send to Contrast", "Remove"};
    setToolTip(button < 0 ? QString() : worded(kTips[static_cast<std::size_t>(button)]));
    repaintItem(item);
}

void PaletteCanvas::press(std::size_t at, int button) {
    const auto held = state_.swatches()[at];
    switch (button) {
    case copyButton:
        state_.copy(colorAt(at), held.name);
        break;
    case editButton:
        state_.editSwatch(at);
        break;
    case benchButton:
        state_.toggleBenchedSwatch(at);
        break;
    case contrastButton:
        state_.sendToContrast(colorAt(at), held.name, state_.place());
        break;
    case removeButton:
        state_.removeSwatch(at);
        break;
    default:
        break;
    }
}

void PaletteCanvas::mousePressEvent(QMouseEvent* event) {
    const auto item = itemAt(event->position());
    if (field_) field_->end(true);
    if (item < 0 || event->button() != Qt::LeftButton) {
        if (item >= 0) setFocused(item);
        return;
    }
    const auto& one = items()[static_cast<std::size_t>(item)];
    pressed_ = one.kind == swatch ? std::optional(one.index) : std::nullopt;
    wasSelected_ = one.selected;
    pressedAt_ = event->position();
    pressedButton_ = buttonAt(item, event->position()).value_or(-1);
    setFocused(item);
    if (one.kind == swatch) state_.selectedSwatch = pressed_;
    repaintItem(item);
}

void PaletteCanvas::mouseMoveEvent(QMouseEvent* event) {
    Canvas::mouseMoveEvent(event);
    const auto far = (event->position() - pressedAt_).manhattanLength();
    const bool drags = pressed_ && pressedButton_ < 0 && (event->buttons() & Qt::LeftButton) &&
                       far >= QApplication::startDragDistance();
    if (drags) startDrag(*pressed_);
}

void PaletteCanvas::mouseReleaseEvent(QMouseEvent* event) {
    const auto item = itemAt(event->position());
    const auto button = std::exchange(pressedButton_, -1);
    const auto pressed = std::exchange(pressed_, std::nullopt);
    if (item < 0 || event->button() != Qt::LeftButton) return;
    const auto one = items()[static_cast<std::size_t>(item)];
    repaintItem(item);
    if (one.kind == addCell) {
        state_.addBlankSwatch(true);
        return;
    }
    if (pressed != one.index) return;
    if (button >= 0) {
        if (buttonAt(item, event->position()) == button) press(one.index, button);
        return;
    }
    clickWords(one.index, event->position());
}

void PaletteCanvas::clickWords(std::size_t at, QPointF place) {
    const auto item = find(swatch, at);
    if (item < 0) return;
    const auto words = look(at);
    const auto in = items()[static_cast<std::size_t>(item)].rect;
    const auto held = state_.swatches()[at];
    if (ui_.painter.codeRect(in, words).contains(place))
        state_.copy(colorAt(at), held.name);
    else if (wasSelected_ && ui_.painter.nameRect(in, words).contains(place))
        beginRename(at);
}

void PaletteCanvas::mouseDoubleClickEvent(QMouseEvent* event) {
    const auto item = itemAt(event->position());
    if (item < 0 || items()[static_cast<std::size_t>(item)].kind != swatch) return;
    if (buttonAt(item, event->position())) {
        mousePressEvent(event);
        return;
    }
    if (field_) field_->end(false);
    state_.editSwatch(items()[static_cast<std::size_t>(item)].index);
}

void PaletteCanvas::contextMenuEvent(QContextMenuEvent* event) {
    const auto item =
        event->reason() == QContextMenuEvent::Keyboard ? focused() : itemAt(event->pos());
    if (item >= 0) setFocused(item);
    const bool onSwatch = item >= 0 && items()[static_cast<std::size_t>(item)].kind == swatch;
    const auto at = event->reason() == QContextMenuEvent::Keyboard && item >= 0
                        ? items()[static_cast<std::size_t>(item)].rect.center().toPoint()
                        : event->pos();
    if (contextMenu) contextMenu(mapToGlobal(at), onSwatch);
}

void PaletteCanvas::keyPressEvent(QKeyEvent* event) {
    const auto item = focused();
    const bool onAdd = item >= 0 && items()[static_cast<std::size_t>(item)].kind == addCell;
    const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (onAdd && (enters || event->key() == Qt::Key_Space)) {
        state_.addBlankSwatch(true);
        return;
    }
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) {
        setPeeking(true);
        return;
    }
    Canvas::keyPressEvent(event);
}

void PaletteCanvas::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) setPeeking(false);
    Canvas::keyReleaseEvent(event);
}

void PaletteCanvas::focusOutEvent(QFocusEvent* event) {
    setPeeking(false);
    Canvas::focusOutEvent(event);
}

void PaletteCanvas::beginRename(std::size_t at) {
    if (field_) field_->end(true);
    if (find(swatch, at) < 0) relayout();
    if (find(swatch, at) < 0) return;
    const auto& held = state_.swatches()[at];
    renamed_ = at;
    field_ = new PlacedField(held.name ? fromUtf8(*held.name) : QString(), fieldPlace(at), this);
    field_->setAccessibleName(worded("Name of the swatch"));
    field_->setFont(theme().font(TextStyle::name));
    field_->setPlaceholderText(items()[at].name);
    field_->kept = [this, id = held.id](const QString& name) {
        if (const auto now = state_.indexOf(id)) state_.renameSwatch(*now, toUtf8(name));
    };
    field_->ended = [this] {
        state_.renamingSwatch = std::nullopt;
        relayout();
    };
    repaintItem(find(swatch, at));
}

QRect PaletteCanvas::fieldPlace(std::size_t at) const {
    constexpr int kLeastWidth = 116, kAboveFoot = 60, kBeside = 4;
    const auto& in = items()[at].rect;
    const auto words = ui_.painter.nameRect(in, look(at));
    const auto high = theme().scaled(28);
    if (stand_.shape == SwatchShape::row)
        return QRectF(words.left() - 8, in.center().y() - high / 2.0,
                      std::max<qreal>(words.width(), kLeastWidth), high)
            .toRect();
    // Over a narrow column the field stands upright, as wide as a name needs.
    const auto wide =
        std::min<qreal>(std::max<qreal>(in.width() - 2 * kBeside, kLeastWidth), width());
    const auto left = std::clamp<qreal>(in.center().x() - wide / 2, 0, width() - wide);
    const auto middle =
        stand_.shape == SwatchShape::onSide ? in.bottom() - kAboveFoot : words.center().y();
    return QRectF(left, middle - high / 2.0, wide, high).toRect();
}

} // namespace tintra
