#include "ui/shared/Canvas.h"

#include "ui/shared/Theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

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
    if (item >= 0 && hasFocus()) {
        QAccessibleEvent event(this, QAccessible::Focus);
        event.setChild(item);
        QAccessible::updateAccessibility(&event);
    }
    focusMoved(item);
    if (changed) changed();
}

void Canvas::markSelected(int item) {
    for (std::size_t i = 0; i < items_.size(); ++i) {
        const bool selected = static_cast<int>(i) == item;
        if (items_[i].selected == selected) continue;
        items_[i].selected = selected;
        repaintItem(static_cast<int>(i));
        if (!selected) continue;
        QAccessibleEvent event(this, QAccessible::Selection);
        event.setChild(item);
        QAccessible::updateAccessibility(&event);
    }
}

void Canvas::replaceItem(int item, CanvasItem now) {
    if (item < 0 || item >= static_cast<int>(items_.size())) return;
    repaintItem(item);
    auto& held = items_[static_cast<std::size_t>(item)];
    const bool tells = held.value != now.value || held.name != now.name;
    held = std::move(now);
    repaintItem(item);
    if (!tells || !QAccessible::isActive()) return;
    QAccessibleEvent event(this, QAccessible::NameChanged);
    event.setChild(item);
    QAccessible::updateAccessibility(&event);
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
    const auto count = items_.size();
    items_ = layoutItems(QSizeF(size()));
    focused_ = before ? find(before->kind, before->index) : -1;
    hovered_ = underMouse() ? itemAt(mapFromGlobal(QCursor::pos())) : -1;
    if (count != items_.size() && QAccessible::isActive()) {
        QAccessibleEvent event(this, QAccessible::ObjectReorder);
        QAccessible::updateAccessibility(&event);
    }
    if (changed) changed();
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

bool Canvas::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::StyleChange) relayout();
    return QWidget::event(event);
}

void Canvas::paintEvent(QPaintEvent* event) {
    layOut();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    paintGround(painter, event->rect());
    const auto beyond = overhang();
    const QRectF dirty = event->rect().adjusted(-beyond, -beyond, beyond, beyond);
    const bool ring = showsFocus();
    for (std::size_t i = 0; i < items_.size(); ++i) {
        if (!items_[i].rect.intersects(dirty)) continue;
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
}

void Canvas::focusOutEvent(QFocusEvent* event) {
    repaintItem(focused_);
    QWidget::focusOutEvent(event);
}

} // namespace tintra
