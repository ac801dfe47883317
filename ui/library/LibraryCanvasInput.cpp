// Walking, folding and what is done with the mouse.

#include "state/Models.h"
#include "ui/library/LibraryCanvas.h"
#include "ui/library/LibraryItems.h"
#include "ui/library/LibraryWords.h"
#include "ui/shared/ColourDrag.h"
#include "ui/shared/ColourMime.h"
#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Theme.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDrag>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>
#include <cmath>
#include <utility>

namespace tintra {

// Scrolling

void LibraryCanvas::reveal(const Place& place) {
    const auto at = lineOf(place);
    if (!at) return;
    const auto& line = layout_.lines()[*at];
    auto top = line.top, bottom = line.top + line.height;
    if (place.kind == palette) bottom = layout_.paletteRect(line, place.index).bottom();
    if (place.kind == swatch || place.kind == action) {
        const auto all = panelPlaces(findOf(place.index));
        const auto found = std::ranges::find(all, place);
        const auto item = find(place.kind, place.index);
        if (found != all.end() && item >= 0) {
            const auto rect = items()[static_cast<std::size_t>(item)].rect;
            top = rect.top() + bar_->value();
            bottom = rect.bottom() + bar_->value();
        }
    }
    constexpr int kMargin = 8;
    const auto view = static_cast<qreal>(bar_->value());
    if (top - kMargin < view)
        bar_->setValue(static_cast<int>(std::floor(top - kMargin)));
    else if (bottom + kMargin > view + height())
        bar_->setValue(static_cast<int>(std::ceil(bottom + kMargin - height())));
}

void LibraryCanvas::wheelEvent(QWheelEvent* event) {
    QApplication::sendEvent(bar_, event);
    event->accept();
}

// The keyboard

void LibraryCanvas::moveTo(const Place& place) {
    place_ = place;
    relayout();
    reveal(place);
    setFocused(find(place.kind, place.index));
    useKeyboard(true);
}

int LibraryCanvas::neighbour(int from, Qt::Key) const {
    if (from >= 0) return from;
    for (std::size_t i = 0; i < items().size(); ++i)
        if (items()[i].kind == palette || items()[i].kind == header ||
            items()[i].kind == noteAction)
            return static_cast<int>(i);
    return -1;
}

void LibraryCanvas::takeKeyboard() {
    setFocus(Qt::OtherFocusReason);
    const auto& lines = layout_.lines();
    if (place_ || lines.empty()) return;
    const auto first = std::ranges::find_if(lines, [](const auto& line) { return line.count > 0; });
    if (first != lines.end()) moveTo({palette, first->first});
}

std::optional<LibraryCanvas::Place> LibraryCanvas::placeOnLine(std::size_t at, qreal column) const {
    const auto& line = layout_.lines()[at];
    switch (line.kind) {
    case LibraryLine::Kind::header:
        return Place{header, line.section};
    case LibraryLine::Kind::note:
        if (noteOf(model_, line).action.isEmpty()) return std::nullopt;
        return Place{noteAction, at};
    case LibraryLine::Kind::palette:
    case LibraryLine::Kind::tiles:
        break;
    }
    const auto in = static_cast<std::size_t>(std::max<qreal>(column, 0));
    return Place{palette, line.first + std::min(in, line.count - 1)};
}

void LibraryCanvas::walkLines(int by) {
    const auto& lines = layout_.lines();
    const auto from = focusedLine();
    const bool isAnywhere = from < lines.size();
    qreal column = 0;
    if (isAnywhere && place_->kind == palette)
        column = static_cast<qreal>(place_->index - lines[from].first);
    auto at = isAnywhere ? static_cast<std::ptrdiff_t>(from) + by : 0;
    for (; at >= 0 && at < static_cast<std::ptrdiff_t>(lines.size()); at += by)
        if (const auto to = placeOnLine(static_cast<std::size_t>(at), column)) return moveTo(*to);
}

void LibraryCanvas::walkPage(int by) {
    const auto& lines = layout_.lines();
    if (lines.empty()) return;
    const auto from = focusedLine();
    const auto y =
        (from < lines.size() ? lines[from].top : 0) + by * (height() - lines.front().height);
    const auto last = lines.size() - 1;
    auto at = std::min(layout_.lineAt(std::max<qreal>(y, 0)), last);
    if (at == from && by > 0) at = std::min(at + 1, last);
    if (const auto to = placeOnLine(at, 0)) moveTo(*to);
}

std::vector<LibraryCanvas::Place> LibraryCanvas::panelPlaces(std::size_t find) const {
    std::vector<Place> all;
    for (const auto& item : items())
        if ((item.kind == swatch || item.kind == action) && findOf(item.index) == find)
            all.push_back({static_cast<Kind>(item.kind), item.index});
    return all;
}

/// Within what is unfolded, the nearest in the direction of an arrow; none where it ends.
std::optional<LibraryCanvas::Place> LibraryCanvas::beside(const Place& from, Qt::Key key) const {
    const auto all = panelPlaces(findOf(from.index));
    const auto here = std::ranges::find(all, from);
    if (here == all.end()) return std::nullopt;
    if (key == Qt::Key_Left) return here == all.begin() ? std::nullopt : std::optional(*(here - 1));
    if (key == Qt::Key_Right)
        return here + 1 == all.end() ? std::optional(from) : std::optional(*(here + 1));
    const auto rectOf = [this](const Place& place) {
        return items()[static_cast<std::size_t>(find(place.kind, place.index))].rect;
    };
    const auto rect = rectOf(from);
    std::optional<Place> best;
    qreal least = 0;
    for (const auto& place : all) {
        const auto other = rectOf(place);
        const auto down =
            key == Qt::Key_Down ? other.top() - rect.bottom() : rect.top() - other.bottom();
        if (down < -1) continue;
        const auto far = down * 4 + std::abs(other.center().x() - rect.center().x());
        if (best && far >= least) continue;
        best = place;
        least = far;
    }
    return best;
}

bool LibraryCanvas::walkPanel(Qt::Key key) {
    if (!place_ || (place_->kind != swatch && place_->kind != action)) return false;
    const auto find = findOf(place_->index);
    if (const auto to = beside(*place_, key)) {
        moveTo(*to);
        return true;
    }
    if (key == Qt::Key_Down)
        walkLines(1);
    else
        moveTo({palette, find});
    return true;
}

void LibraryCanvas::fold(bool folds) {
    const auto& listing = model_.listing();
    if (place_->kind == header)
        model_.fold(listing.groupOf(listing.sections[place_->index]), folds);
    else if (place_->kind == palette)
        model_.unfold(listing.paletteAt(place_->index), !folds);
    useKeyboard(true);
}

bool LibraryCanvas::goRight() {
    if (!place_) return false;
    const auto& listing = model_.listing();
    if (place_->kind == header) {
        const bool isFolded = model_.isFolded(listing.groupOf(listing.sections[place_->index]));
        isFolded ? fold(false) : walkLines(1);
        return true;
    }
    if (place_->kind != palette) return false;
    if (ui_.models.preferences().libraryTiles) {
        if (place_->index + 1 < listing.finds.size() && lineWith(place_->index + 1))
            moveTo({palette, place_->index + 1});
        return true;
    }
    if (!model_.isUnfolded(listing.paletteAt(place_->index))) {
        fold(false);
        return true;
    }
    const auto inside = panelPlaces(place_->index);
    if (!inside.empty()) moveTo(inside.front());
    return true;
}

bool LibraryCanvas::goLeft() {
    if (!place_) return false;
    const auto& listing = model_.listing();
    if (place_->kind == header) {
        fold(true);
        return true;
    }
    if (place_->kind != palette) return false;
    const auto& line = layout_.lines()[*lineOf(*place_)];
    const bool isTiles = line.kind == LibraryLine::Kind::tiles;
    if (isTiles && place_->index > listing.sections[line.section].first)
        moveTo({palette, place_->index - 1});
    else if (!isTiles && line.isUnfolded)
        fold(true);
    else
        moveTo({header, line.section});
    return true;
}

bool LibraryCanvas::walk(Qt::Key key) {
    switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (!walkPanel(key)) walkLines(key == Qt::Key_Down ? 1 : -1);
        return true;
    case Qt::Key_Left:
        return walkPanel(key) || goLeft();
    case Qt::Key_Right:
        return walkPanel(key) || goRight();
    case Qt::Key_PageUp:
        walkPage(-1);
        return true;
    case Qt::Key_PageDown:
        walkPage(1);
        return true;
    case Qt::Key_Home:
    case Qt::Key_End: {
        const auto& lines = layout_.lines();
        const auto last = lines.empty() ? 0 : lines.size() - 1;
        const auto end = static_cast<qreal>(layout_.columns());
        if (lines.empty()) return true;
        const bool isHome = key == Qt::Key_Home;
        if (const auto to = placeOnLine(isHome ? 0 : last, isHome ? 0 : end)) moveTo(*to);
        return true;
    }
    default:
        return false;
    }
}

bool LibraryCanvas::pressFocused() {
    if (focused() < 0) return false;
    const auto item = items()[static_cast<std::size_t>(focused())];
    if (item.kind != header && item.kind != action && item.kind != noteAction) return false;
    click(item);
    return true;
}

void LibraryCanvas::keyPressEvent(QKeyEvent* event) {
    const auto key = static_cast<Qt::Key>(event->key());
    const auto held = event->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
    const bool enters = key == Qt::Key_Return || key == Qt::Key_Enter;
    bool isDone = false;
    if (!held && (enters || key == Qt::Key_Space)) isDone = pressFocused();
    if (!held && !isDone && key == Qt::Key_Space && place_ && place_->kind == palette) {
        fold(model_.isUnfolded(model_.listing().paletteAt(place_->index)));
        isDone = true;
    }
    if (!held && !isDone) isDone = walk(key);
    if (!isDone) return QWidget::keyPressEvent(event);
    event->accept();
}

// The mouse

void LibraryCanvas::press(LibraryButton::Does does, const CanvasItem& item) {
    switch (does) {
    case LibraryButton::Does::unfold:
        model_.unfold(model_.listing().paletteAt(item.index), !item.expanded.value_or(false));
        return;
    case LibraryButton::Does::duplicate:
        if (act) act(LibraryPanel::duplicate);
        return;
    case LibraryButton::Does::reveal:
        if (act) act(LibraryPanel::reveal);
        return;
    case LibraryButton::Does::more:
        openMenu(item, buttonsOf(item).back().rect.bottomLeft().toPoint());
        return;
    }
}

void LibraryCanvas::click(const CanvasItem& item) {
    const auto& listing = model_.listing();
    if (item.kind == header) {
        model_.fold(listing.groupOf(listing.sections[item.index]), item.expanded.value_or(false));
        return;
    }
    if (item.kind == action && act) act(static_cast<LibraryPanel::Action>(partOf(item.index)));
    if (item.kind != noteAction || !answer) return;
    const auto& line = layout_.lines()[item.index];
    std::optional<Uuid> location;
    if (line.section < listing.sections.size())
        if (const auto& of = listing.groupOf(listing.sections[line.section]).location)
            location = of->id;
    answer(noteOf(model_, line).about, location);
}

void LibraryCanvas::mousePressEvent(QMouseEvent* event) {
    const auto at = itemAt(event->position());
    pressed_.reset();
    useKeyboard(false);
    if (at < 0) return;
    const auto item = items()[static_cast<std::size_t>(at)];
    if (item.kind == panel) return;
    setFocused(at);
    if (event->button() != Qt::LeftButton) return;
    pressed_ = item;
    pressedAt_ = event->position();
    pressedButton_ = buttonAt(at, event->position());
}

void LibraryCanvas::mouseMoveEvent(QMouseEvent* event) {
    Canvas::mouseMoveEvent(event);
    if (!pressed_ || pressedButton_ >= 0 || !(event->buttons() & Qt::LeftButton)) return;
    const auto far = (event->position() - pressedAt_).manhattanLength();
    if (far < QApplication::startDragDistance()) return;
    if (const auto item = std::exchange(pressed_, std::nullopt)) startDrag(*item);
}

void LibraryCanvas::mouseReleaseEvent(QMouseEvent* event) {
    const auto pressed = std::exchange(pressed_, std::nullopt);
    const auto button = std::exchange(pressedButton_, -1);
    const auto at = itemAt(event->position());
    if (!pressed || at < 0 || event->button() != Qt::LeftButton) return;
    const auto item = items()[static_cast<std::size_t>(at)];
    if (item.kind != pressed->kind || item.index != pressed->index) return;
    if (button < 0) return click(item);
    if (buttonAt(at, event->position()) == button)
        press(buttonsOf(item)[static_cast<std::size_t>(button)].does, item);
}

void LibraryCanvas::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
    if (!pressed_ || pressedButton_ >= 0 || pressed_->kind != palette || !act) return;
    pressed_.reset();
    act(event->modifiers().testFlag(Qt::AltModifier) ? LibraryPanel::openInNewWindow
                                                     : LibraryPanel::open);
}

void LibraryCanvas::openMenu(const CanvasItem& item, QPoint at) {
    if (!contextMenu) return;
    auto of = MenuOf::nothing;
    if (item.kind == palette || item.kind == action) of = MenuOf::palette;
    if (item.kind == swatch) of = MenuOf::swatch;
    if (item.kind == header && !buttonsOf(item).empty()) of = MenuOf::group;
    contextMenu(of, mapToGlobal(at));
}

void LibraryCanvas::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const auto at = byKey ? focused() : itemAt(event->pos());
    if (at < 0 || items()[static_cast<std::size_t>(at)].kind == panel) {
        if (contextMenu) contextMenu(MenuOf::nothing, event->globalPos());
        return;
    }
    setFocused(at);
    const auto item = items()[static_cast<std::size_t>(at)];
    openMenu(item, byKey ? item.rect.center().toPoint() : event->pos());
}

// Dragging out

void LibraryCanvas::startDrag(const CanvasItem& item) {
    const auto& listing = model_.listing();
    const auto ratio = devicePixelRatioF();
    if (item.kind == swatch) {
        const auto held =
            listing.paletteAt(findOf(item.index)).palette->swatches[partOf(item.index)];
        SwatchLook look;
        look.color = held.color;
        look.name = swatchName(held);
        look.code = swatchCode(ui_, held);
        dragColour(*this, ui_.painter, {held.color, held.name, DragOfLibrarySwatch{}}, look,
                   kSmallDragCard);
        return;
    }
    if (item.kind != palette) return;
    auto offered = mimeOfListed(ui_, listing.paletteAt(item.index));
    if (!offered) return;
    auto* drag = new QDrag(this);
    drag->setMimeData(offered.release());
    drag->setPixmap(painter_.card(item.index, ratio));
    drag->setHotSpot({30, 30});
    drag->exec(Qt::CopyAction);
}

} // namespace tintra
