// How the pointer, the keyboard and drags act on the colours of the contrast board.

#include "state/Models.h"
#include "ui/contrast/ContrastDrops.h"
#include "ui/contrast/EntryList.h"
#include "ui/shared/ColourDrag.h"
#include "ui/shared/PlacedField.h"
#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMouseEvent>
#include <algorithm>
#include <utility>

namespace tintra {
namespace {

const DragOfContrastEntry* entryOf(const Drag& drag) {
    return std::get_if<DragOfContrastEntry>(&drag.source);
}

} // namespace

void EntryList::focusMoved(int item) {
    entry_.reset();
    if (item < 0) return;
    const auto& to = items()[static_cast<std::size_t>(item)];
    if (to.kind == entry && to.index < board_.entries().size())
        entry_ = board_.entries()[to.index].id;
    if (reveal) reveal(to.rect.toAlignedRect());
}

/// The focus stays with its colour when the order changes, and in its place when that goes.
void EntryList::followEntry() {
    const auto& entries = board_.entries();
    const auto found =
        std::ranges::find(entries, entry_, [](const Entry& one) { return std::optional(one.id); });
    if (found == entries.end())
        focusMoved(focused());
    else
        setFocused(find(entry, static_cast<std::size_t>(found - entries.begin())));
}

int EntryList::neighbour(int from, Qt::Key key) const {
    const auto last = static_cast<int>(items().size()) - 1;
    if (from >= 0 && (key == Qt::Key_Up || key == Qt::Key_Left)) return std::max(0, from - 1);
    if (from >= 0 && (key == Qt::Key_Down || key == Qt::Key_Right)) return std::min(last, from + 1);
    return Canvas::neighbour(from, key);
}

void EntryList::hoverMoved(int item, QPointF place) {
    const auto role = roleAt(item, place);
    if (role != hoveredRole_) {
        hoveredRole_ = role;
        repaintItem(item);
    }
    QString tip;
    if (role)
        tip = worded(*role == Role::text ? "Use as the Text (T)" : "Use as the Ground (G)");
    else if (item >= 0 && isCompact())
        tip = items()[static_cast<std::size_t>(item)].name;
    setToolTip(tip);
}

void EntryList::mousePressEvent(QMouseEvent* event) {
    if (field_) field_->end(true);
    pressed_ = itemAt(event->position());
    pressedAt_ = event->position();
    if (pressed_ >= 0) setFocused(pressed_);
    if (event->button() != Qt::LeftButton) pressed_ = -1;
}

void EntryList::mouseMoveEvent(QMouseEvent* event) {
    Canvas::mouseMoveEvent(event);
    const auto far = (event->position() - pressedAt_).manhattanLength();
    if (pressed_ < 0 || !(event->buttons() & Qt::LeftButton) ||
        far < QApplication::startDragDistance())
        return;
    const auto& row = items()[static_cast<std::size_t>(pressed_)];
    if (row.kind == entry && !roleAt(pressed_, pressedAt_)) startDrag(row.index);
}

void EntryList::mouseReleaseEvent(QMouseEvent* event) {
    const auto pressed = std::exchange(pressed_, -1);
    if (pressed < 0 || pressed != itemAt(event->position())) return;
    const auto& row = items()[static_cast<std::size_t>(pressed)];
    if (row.kind == addRow) {
        if (addColour) addColour();
        return;
    }
    const auto role = roleAt(pressed, event->position());
    if (role && role == roleAt(pressed, pressedAt_))
        board_.setRole(*role, Uuid(board_.entries()[row.index].id));
}

void EntryList::mouseDoubleClickEvent(QMouseEvent* event) {
    const auto item = itemAt(event->position());
    const bool onName =
        item >= 0 && items()[static_cast<std::size_t>(item)].kind == entry &&
        nameRect(items()[static_cast<std::size_t>(item)]).contains(event->position());
    if (!onName || roleAt(item, event->position())) {
        mousePressEvent(event);
        return;
    }
    setFocused(item);
    if (const auto id = target()) beginRename(*id);
}

void EntryList::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const auto item = byKey ? focused() : itemAt(event->pos());
    if (item < 0 || !fillMenu) return;
    setFocused(item);
    if (!target()) return;
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fillMenu(*menu);
    const auto middle = items()[static_cast<std::size_t>(item)].rect.center().toPoint();
    menu->popup(mapToGlobal(byKey ? middle : event->pos()));
}

void EntryList::keyPressEvent(QKeyEvent* event) {
    const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                        event->key() == Qt::Key_Space;
    const bool onAdd =
        focused() >= 0 && items()[static_cast<std::size_t>(focused())].kind == addRow;
    if (enters && onAdd && addColour)
        addColour();
    else
        Canvas::keyPressEvent(event);
}

void EntryList::resizeEvent(QResizeEvent* event) {
    if (field_) field_->end(true);
    Canvas::resizeEvent(event);
}

// Drag and drop

void EntryList::startDrag(std::size_t at) {
    pressed_ = -1;
    const auto held = board_.entries()[at];
    SwatchLook look;
    look.color = held.color;
    look.vision = board_.vision;
    const auto item = static_cast<std::size_t>(find(entry, at));
    look.name = items()[item].name;
    look.code = items()[item].value;
    board_.draggingEntry = held.id;
    const QPointer<EntryList> self(this);
    dragColour(*this, ui_.painter, {held.color, held.givenName, DragOfContrastEntry{held.id}}, look,
               kDragCard);
    // The window may have been closed in the middle of the drag.
    if (self) board_.draggingEntry = std::nullopt;
}

void EntryList::dragEnterEvent(QDragEnterEvent* event) {
    if (!isUnderstood(*event->mimeData())) return;
    event->acceptProposedAction();
    isOver_ = true;
    isMoving_ = board_.draggingEntry.value().has_value();
    update();
}

void EntryList::dragMoveEvent(QDragMoveEvent* event) {
    event->acceptProposedAction();
    insertion_ = isMoving_ ? std::optional(insertionAt(event->position())) : std::nullopt;
    if (reveal) reveal(QRect(event->position().toPoint(), QSize(1, 1)).adjusted(0, -24, 0, 24));
    update();
}

void EntryList::dragLeaveEvent(QDragLeaveEvent*) {
    insertion_.reset();
    isOver_ = false;
    update();
}

void EntryList::dropEvent(QDropEvent* event) {
    const auto drop = dropped(*event->mimeData());
    const auto to = insertionAt(event->position());
    dragLeaveEvent(nullptr);
    event->acceptProposedAction();
    const auto* moved = drop.colour ? entryOf(*drop.colour) : nullptr;
    if (!moved) {
        receiveInContrast(ui_, drop, std::nullopt);
        return;
    }
    const auto& entries = board_.entries();
    const auto from = std::ranges::find(entries, moved->entry, &Entry::id);
    if (from == entries.end()) return;
    const auto place = static_cast<std::size_t>(from - entries.begin());
    board_.move(moved->entry, to > place ? to - 1 : to);
}

} // namespace tintra
