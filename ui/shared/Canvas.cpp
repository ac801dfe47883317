#include "ui/shared/Canvas.h"

#include "ui/shared/AccessibilityEvents.h"
#include "ui/shared/Theme.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

namespace tintra {
namespace {

bool isWalkedTo(const CanvasItem& item) {
    return item.role != QAccessible::NoRole;
}

/// How far `to` lies from `from` in the direction of an arrow key; nothing when it does not lie
/// there. Going sideways from the direction counts double, so that rows and columns are kept to.
std::optional<qreal> distance(const QRectF& from, const QRectF& to, Qt::Key key) {
    const auto step = to.center() - from.center();
    const bool horizontal = key == Qt::Key_Left || key == Qt::Key_Right;
    const bool forward = key == Qt::Key_Right || key == Qt::Key_Down;
    const auto along = (horizontal ? step.x() : step.y()) * (forward ? 1 : -1);
    const auto aside = std::abs(horizontal ? step.y() : step.x());
    if (along < 1 || aside > along * 4) return std::nullopt;
    return along + 2 * aside;
}

} // namespace

Canvas::Canvas(Theme& theme, QWidget* parent) : QWidget(parent), theme_(theme) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

Canvas::~Canvas() = default;

int Canvas::itemAt(QPointF place) const {
    for (auto i = static_cast<int>(items_.size()) - 1; i >= 0; --i)
        if (items_[static_cast<std::size_t>(i)].rect.contains(place)) return i;
    return -1;
}

int Canvas::find(int kind, std::size_t index) const {
    for (std::size_t i = 0; i < items_.size(); ++i)
        if (items_[i].kind == kind && items_[i].index == index) return static_cast<int>(i);
    return -1;
}

void Canvas::setFocused(int item) {
    if (item >= static_cast<int>(items_.size())) item = -1;
    if (item == focused_) return;
    repaintItem(focused_);
    focused_ = item;
    repaintItem(focused_);
    if (hasFocus()) announce(QAccessible::Focus, item);
    focusMoved(item);
    if (changed) changed();
}

void Canvas::takeFocus(int item) {
    setFocus(Qt::OtherFocusReason);
    setFocused(item);
}

void Canvas::press(int item) {
    if (item < 0 || item >= static_cast<int>(items_.size()) || !canPress(item)) return;
    takeFocus(item);
    activate(item);
}

bool Canvas::canPress(int item) const {
    const auto& one = items_[static_cast<std::size_t>(item)];
    return isEnabled() && isWalkedTo(one) && activates(one);
}

bool Canvas::activates(const CanvasItem&) const {
    return true;
}

void Canvas::activate(int) {
    // As the key itself: what the canvas leaves goes on to its window.
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(this, &enter);
}

void Canvas::announce(QAccessible::Event what, int item) {
    if (item < 0 || !isAccessibilityHeard()) return;
    QAccessibleEvent event(this, what);
    event.setChild(item);
    tellAccessibility(event);
}

void Canvas::announceChanges(const std::vector<CanvasItem>& before) {
    if (!isAccessibilityHeard()) return;
    if (before.size() != items_.size()) {
        QAccessibleEvent event(this, QAccessible::ObjectReorder);
        tellAccessibility(event);
        // Another one may stand where the focus is.
        if (hasFocus()) announce(QAccessible::Focus, focused_);
        return;
    }
    for (std::size_t i = 0; i < items_.size(); ++i)
        announceChange(before[i], static_cast<int>(i));
}

void Canvas::announceChange(const CanvasItem& was, int item) {
    if (!isAccessibilityHeard()) return;
    const auto& is = items_[static_cast<std::size_t>(item)];
    if (was.name != is.name) announce(QAccessible::NameChanged, item);
    if (was.value != is.value || was.description != is.description)
        announce(QAccessible::DescriptionChanged, item);
    if (was.selected != is.selected)
        announce(is.selected ? QAccessible::SelectionAdd : QAccessible::SelectionRemove, item);
    if (was.checked == is.checked) return;
    QAccessible::State which;
    which.checked = true;
    QAccessibleStateChangeEvent event(this, which);
    event.setChild(item);
    tellAccessibility(event);
}

void Canvas::markSelected(int item) {
    for (std::size_t i = 0; i < items_.size(); ++i) {
        const bool selected = static_cast<int>(i) == item;
        if (items_[i].selected == selected) continue;
        items_[i].selected = selected;
        repaintItem(static_cast<int>(i));
        announce(selected ? QAccessible::Selection : QAccessible::SelectionRemove,
                 static_cast<int>(i));
    }
}

bool Canvas::showsFocus() const {
    return hasFocus() && (focusByKeyboard_ || theme_.isHighContrast());
}

void Canvas::useKeyboard(bool uses) {
    if (focusByKeyboard_ == uses) return;
    focusByKeyboard_ = uses;
    repaintItem(focused_);
}

void Canvas::relayout() {
    stale_ = true;
    layOut();
    update();
}

void Canvas::layOut() {
    if (!stale_) return;
    stale_ = false;
    const auto before = focused_ >= 0 && focused_ < static_cast<int>(items_.size())
                            ? std::optional(items_[static_cast<std::size_t>(focused_)])
                            : std::nullopt;
    const auto old = std::exchange(items_, layoutItems(QSizeF(size())));
    focused_ = before ? find(before->kind, before->index) : -1;
    hovered_ = underMouse() ? itemAt(mapFromGlobal(QCursor::pos())) : -1;
    announceChanges(old);
    if (changed) changed();
}

void Canvas::setItem(int item, CanvasItem now) {
    if (item < 0 || item >= static_cast<int>(items_.size())) return;
    repaintItem(item);
    const auto was = std::exchange(items_[static_cast<std::size_t>(item)], std::move(now));
    repaintItem(item);
    announceChange(was, item);
}

void Canvas::repaintItem(int item) {
    if (item < 0 || item >= static_cast<int>(items_.size())) return;
    const auto beyond = overhang();
    update(items_[static_cast<std::size_t>(item)].rect.toAlignedRect().adjusted(-beyond, -beyond,
                                                                                beyond, beyond));
}

void Canvas::paintGround(QPainter& painter, const QRect& dirty) {
    painter.fillRect(dirty, theme_.color(Token::ground));
}

int Canvas::neighbour(int from, Qt::Key key) const {
    std::vector<int> walked;
    for (std::size_t i = 0; i < items_.size(); ++i)
        if (isWalkedTo(items_[i])) walked.push_back(static_cast<int>(i));
    if (walked.empty()) return -1;
    if (key == Qt::Key_Home || from < 0) return walked.front();
    if (key == Qt::Key_End) return walked.back();
    if (key == Qt::Key_PageUp || key == Qt::Key_PageDown)
        return pageNeighbour(from, key == Qt::Key_PageDown);
    int best = from;
    std::optional<qreal> least;
    for (const auto i : walked) {
        const auto far = distance(items_[static_cast<std::size_t>(from)].rect,
                                  items_[static_cast<std::size_t>(i)].rect, key);
        if (i != from && far && (!least || *far < *least)) {
            least = far;
            best = i;
        }
    }
    return best;
}

/// The item that lies nearest to a page further up or down, in the same column before others; where
/// there is less than a page to go, the last one on the way.
int Canvas::pageNeighbour(int from, bool forward) const {
    const auto& here = items_[static_cast<std::size_t>(from)].rect;
    const auto page = std::max<qreal>(visibleRegion().boundingRect().height(), here.height());
    int best = from;
    std::optional<qreal> least;
    for (std::size_t i = 0; i < items_.size(); ++i) {
        const auto step = items_[i].rect.center() - here.center();
        const auto along = forward ? step.y() : -step.y();
        if (along < 1 || !isWalkedTo(items_[i])) continue;
        const auto far = std::abs(along - page) + 2 * std::abs(step.x());
        if (least && far >= *least) continue;
        least = far;
        best = static_cast<int>(i);
    }
    return best;
}

bool Canvas::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::StyleChange) relayout();
    if (event->type() == QEvent::MouseButtonPress) useKeyboard(false);
    return QWidget::event(event);
}

void Canvas::paintEvent(QPaintEvent* event) {
    layOut();
    QPainter painter(this);
    // Smooth edges of the ground would let through what lies beneath, at ratios such as 1.25.
    paintGround(painter, event->rect());
    painter.setRenderHint(QPainter::Antialiasing);
    const auto beyond = overhang();
    const auto& dirty = event->region();
    const bool ring = showsFocus();
    for (std::size_t i = 0; i < items_.size(); ++i) {
        const auto covers = items_[i].rect.toAlignedRect();
        if (!dirty.intersects(covers.adjusted(-beyond, -beyond, beyond, beyond))) continue;
        const auto item = static_cast<int>(i);
        painter.save();
        paintItem(painter, items_[i],
                  {.hovered = item == hovered_, .focused = ring && item == focused_});
        painter.restore();
    }
    paintOverlay(painter);
}

void Canvas::resizeEvent(QResizeEvent*) {
    stale_ = true;
    layOut();
}

void Canvas::mouseMoveEvent(QMouseEvent* event) {
    const auto item = itemAt(event->position());
    if (item != hovered_) {
        repaintItem(hovered_);
        hovered_ = item;
        repaintItem(hovered_);
    }
    hoverMoved(item, event->position());
}

void Canvas::leaveEvent(QEvent*) {
    repaintItem(hovered_);
    hovered_ = -1;
    hoverMoved(-1, {});
}

void Canvas::keyPressEvent(QKeyEvent* event) {
    const auto key = static_cast<Qt::Key>(event->key());
    // With Ctrl or Alt an arrow is a command.
    if (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) {
        QWidget::keyPressEvent(event);
        return;
    }
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown: {
        const auto to = neighbour(focused_, key);
        focusByKeyboard_ = true;
        if (to >= 0) setFocused(to);
        repaintItem(focused_);
        event->accept();
        return;
    }
    default:
        QWidget::keyPressEvent(event);
    }
}

void Canvas::focusInEvent(QFocusEvent* event) {
    const auto reason = event->reason();
    // A window or a menu that comes and goes between changes nothing.
    const bool returns = reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
    focusByKeyboard_ = (returns && focusByKeyboard_) || reason == Qt::TabFocusReason ||
                       reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason ||
                       reason == Qt::OtherFocusReason;
    if (focused_ < 0 && focusByKeyboard_) setFocused(neighbour(-1, Qt::Key_Home));
    repaintItem(focused_);
    QWidget::focusInEvent(event);
    // Qt tells of the canvas after this; what has the focus in it is the last to be told of.
    const auto tell = [this] {
        if (hasFocus()) announce(QAccessible::Focus, focused_);
    };
    if (isAccessibilityHeard()) QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

void Canvas::focusOutEvent(QFocusEvent* event) {
    repaintItem(focused_);
    QWidget::focusOutEvent(event);
}

} // namespace tintra
