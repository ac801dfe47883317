// How the pointer and the keyboard act on the Bench.

#include "state/Models.h"
#include "ui/bench/BenchCanvas.h"
#include "ui/shared/PlacedField.h"
#include "ui/shared/Text.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <array>
#include <utility>

namespace tintra {
namespace {

constexpr std::size_t kButtonCount = 3;
constexpr std::array kTips{"Copy", "Send to Contrast", "Take off the Bench"};

} // namespace

int BenchCanvas::workedAt(QPointF place) const {
    const auto item = itemAt(place);
    if (item < 0) return -1;
    const auto kind = items()[static_cast<std::size_t>(item)].kind;
    if (kind != figure && kind != link) return item;
    for (std::size_t i = 0; i < stand_.columns.size(); ++i)
        if (stand_.columns[i].contains(place)) return find(column, i);
    return -1;
}

std::optional<int> BenchCanvas::buttonAt(int item, QPointF place) const {
    if (item < 0 || !hasButtons(items()[static_cast<std::size_t>(item)])) return std::nullopt;
    const auto rects = ui_.painter.buttonRects(items()[static_cast<std::size_t>(item)].rect,
                                               stand_.shape, kButtonCount);
    for (std::size_t i = 0; i < rects.size(); ++i)
        if (rects[i].contains(place)) return static_cast<int>(i);
    return std::nullopt;
}

void BenchCanvas::hoverMoved(int item, QPointF place) {
    const auto button = buttonAt(item, place).value_or(-1);
    QString tip;
    if (button >= 0) {
        tip = worded(kTips[static_cast<std::size_t>(button)]);
    } else if (item >= 0) {
        const auto& one = items()[static_cast<std::size_t>(item)];
        if (one.kind == figure)
            tip = worded("%1: %2 to 1, %3").arg(one.name, one.value, one.description);
        if (one.kind == mix || one.kind == well) tip = one.name;
    }
    if (tip != toolTip()) setToolTip(tip);
    if (button == hoveredButton_) return;
    hoveredButton_ = button;
    repaintItem(item);
}

// Pressing and clicking

void BenchCanvas::mousePressEvent(QMouseEvent* event) {
    if (field_) field_->end(true);
    const auto item = workedAt(event->position());
    pressedOn_ = selectionOf(item);
    wasActive_ = pressedOn_ && pressedOn_ == bench_.benchActive.value();
    // The well editor may go with this, and the words move.
    pressedWords_ = wordsAt(item, event->position());
    if (pressedOn_) {
        setFocused(item);
        bench_.benchActive = pressedOn_;
    }
    if (event->button() != Qt::LeftButton) return;
    pressedItem_ = item;
    pressedAt_ = event->position();
    pressedButton_ = buttonAt(item, event->position()).value_or(-1);
    repaintItem(item);
}

void BenchCanvas::mouseMoveEvent(QMouseEvent* event) {
    Canvas::mouseMoveEvent(event);
    const auto far = (event->position() - pressedAt_).manhattanLength();
    const bool drags = pressedItem_ >= 0 && pressedButton_ < 0 &&
                       (event->buttons() & Qt::LeftButton) &&
                       far >= QApplication::startDragDistance() && selectionOf(pressedItem_);
    if (drags) startDrag(std::exchange(pressedItem_, -1));
}

void BenchCanvas::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const auto item = workedAt(event->position());
    const auto down = std::exchange(pressedItem_, -1);
    const auto button = std::exchange(pressedButton_, -1);
    repaintItem(item);
    if (down < 0 || item != down) return;
    if (button >= 0) {
        if (buttonAt(item, event->position()) == button && pressed) pressed(button);
        return;
    }
    if (pressedWords_ == Words::code && pressed)
        pressed(0);
    else if (pressedWords_ == Words::name && wasActive_)
        beginRename();
    else
        click(item);
}

void BenchCanvas::click(int item) {
    const auto one = items()[static_cast<std::size_t>(item)];
    if (one.kind == mix) toggleMix(one.index);
    if (one.kind == beginning && typeOrPaste) typeOrPaste();
}

BenchCanvas::Words BenchCanvas::wordsAt(int item, QPointF place) const {
    if (item < 0 || items()[static_cast<std::size_t>(item)].kind != column) return Words::none;
    const auto& one = items()[static_cast<std::size_t>(item)];
    const auto shown = look(one);
    if (ui_.painter.codeRect(one.rect, shown).contains(place)) return Words::code;
    return ui_.painter.nameRect(one.rect, shown).contains(place) ? Words::name : Words::none;
}

void BenchCanvas::toggleMix(std::size_t at) {
    if (at + 1 < bench_.benchColumns().size())
        bench_.toggleWell(Uuid(columnAt(at).id), Uuid(columnAt(at + 1).id));
}

// A well that is pressed opens its editor, and so what is under the pointer moves from there: what
// was pressed decides.

void BenchCanvas::mouseDoubleClickEvent(QMouseEvent* event) {
    if (pressedOn_ && pressedOn_->kind == BenchSelection::Of::well && adjustMix)
        adjustMix();
    else
        mousePressEvent(event);
}

void BenchCanvas::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const auto item = itemOf(byKey ? bench_.benchActive.value() : pressedOn_);
    const bool onItem = item >= 0;
    const auto at = byKey && onItem
                        ? items()[static_cast<std::size_t>(item)].rect.center().toPoint()
                        : event->pos();
    if (contextMenu) contextMenu(mapToGlobal(at), onItem);
}

void BenchCanvas::keyPressEvent(QKeyEvent* event) {
    const auto item = focused();
    const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                        event->key() == Qt::Key_Space;
    const auto kind = item >= 0 ? items()[static_cast<std::size_t>(item)].kind : -1;
    if (enters && (kind == beginning || kind == mix))
        click(item);
    else
        Canvas::keyPressEvent(event);
}

} // namespace tintra
