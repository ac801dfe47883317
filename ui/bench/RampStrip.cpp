#include "ui/bench/RampStrip.h"

#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <cmath>

namespace tintra {
namespace {

constexpr int kRadius = metrics::kControlRadius;

/// The step that a ratio is on; none between two.
std::optional<std::size_t> stepOf(double ratio, std::size_t count) {
    if (count < 2) return std::nullopt;
    const auto at = ratio * static_cast<double>(count - 1);
    const auto nearest = std::round(at);
    if (std::abs(at - nearest) > 0.02) return std::nullopt;
    return static_cast<std::size_t>(nearest);
}

double ratioOf(std::size_t step) {
    return static_cast<double>(step) / static_cast<double>(RampStrip::kSteps - 1);
}

} // namespace

RampStrip::RampStrip(Ui& ui, QWidget* parent) : Canvas(ui.theme, parent), ui_(ui) {
    setAccessibleName(worded("Ramp"));
}

void RampStrip::setRamp(std::vector<Step> steps, double ratio, Vision vision) {
    const auto at = stepOf(ratio, steps.size());
    const bool same = steps == steps_ && vision == vision_;
    const auto before = std::exchange(at_, at);
    if (!same) {
        steps_ = std::move(steps);
        vision_ = vision;
        relayout();
    } else if (before != at) {
        markSelected(at ? static_cast<int>(*at) : -1);
    }
}

std::vector<CanvasItem> RampStrip::layoutItems(QSizeF size) const {
    std::vector<CanvasItem> items;
    const auto count = static_cast<qreal>(steps_.size());
    const auto edge = [&](std::size_t i) {
        return std::round(static_cast<qreal>(i) * size.width() / count);
    };
    for (std::size_t i = 0; i < steps_.size(); ++i) {
        CanvasItem item;
        item.rect = {edge(i), 0, edge(i + 1) - edge(i), size.height()};
        item.index = i;
        item.role = QAccessible::ListItem;
        const auto share = static_cast<int>(std::lround(ratioOf(i) * 100));
        item.name = worded("%1 to %2").arg(100 - share).arg(share);
        item.value = steps_[i].code;
        item.selected = at_ == i;
        items.push_back(std::move(item));
    }
    return items;
}

void RampStrip::paintGround(QPainter& painter, const QRect& dirty) {
    painter.fillRect(dirty, theme().color(Token::panel));
}

void RampStrip::paintItem(QPainter& painter, const CanvasItem& item, ItemState state) {
    const auto& color = steps_[item.index].color;
    const QRectF group(rect());
    SwatchLook look;
    look.color = color;
    look.vision = vision_;
    look.shape = SwatchShape::cell;
    look.radii = radiiWithin(item.rect, group, kRadius);
    look.focused = state.focused;
    look.selected = item.selected;
    ui_.painter.paint(painter, item.rect, look);
    painter.setClipRect(item.rect);
    ui_.painter.hairline(painter, group, kRadius);
}

void RampStrip::take(int item) {
    if (item >= 0 && chosen) chosen(ratioOf(items()[static_cast<std::size_t>(item)].index));
}

void RampStrip::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const auto item = itemAt(event->position());
    setFocused(item);
    take(item);
}

void RampStrip::mouseMoveEvent(QMouseEvent* event) {
    Canvas::mouseMoveEvent(event);
    const auto item = itemAt(event->position());
    if (!(event->buttons() & Qt::LeftButton) || item < 0 || item == focused()) return;
    setFocused(item);
    take(item);
}

void RampStrip::keyPressEvent(QKeyEvent* event) {
    const auto key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space)
        take(focused());
    else
        Canvas::keyPressEvent(event);
}

} // namespace tintra
