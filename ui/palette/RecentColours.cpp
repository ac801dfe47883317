#include "ui/palette/RecentColours.h"

#include "colour/ColorNames.h"
#include "state/Models.h"
#include "ui/shared/Controls.h"
#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace tintra {
namespace {

constexpr int kPerRow = 8, kSide = 24, kStep = 30, kRing = 4;

} // namespace

RecentColours::RecentColours(Ui& ui, Vision vision, QWidget* parent)
    : Canvas(ui.theme, parent), ui_(ui), vision_(vision),
      colours_(ui.models.preferences().recents.value()) {
    setAccessibleName(worded("Recent colours"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    relayout();
}

QSize RecentColours::sizeHint() const {
    const auto rows = (static_cast<int>(colours_.size()) + kPerRow - 1) / kPerRow;
    const auto length = [this](int count) {
        return theme().scaled(kStep) * (count - 1) + theme().scaled(kSide) + 2 * kRing;
    };
    return {length(kPerRow), length(rows)};
}

std::vector<CanvasItem> RecentColours::layoutItems(QSizeF) const {
    const auto& preferences = ui_.models.preferences();
    const auto step = theme().scaled(kStep), side = theme().scaled(kSide);
    std::vector<CanvasItem> items;
    for (std::size_t i = 0; i < colours_.size(); ++i) {
        const auto place = static_cast<int>(i);
        const auto name = ColorNames::shared().name(colours_[i]);
        CanvasItem item;
        item.rect =
            QRectF(kRing + place % kPerRow * step, kRing + place / kPerRow * step, side, side);
        item.index = i;
        item.role = QAccessible::Button;
        item.name = oneLine(name);
        item.value = fromUtf8(preferences.format.value().string(colours_[i], name,
                                                                preferences.formatOptions.value()));
        items.push_back(std::move(item));
    }
    return items;
}

void RecentColours::paintGround(QPainter& painter, const QRect& dirty) {
    painter.fillRect(dirty, theme().color(Token::raised));
}

void RecentColours::paintItem(QPainter& painter, const CanvasItem& item, ItemState state) {
    ui_.painter.chip(painter, item.rect, colours_[item.index], vision_);
    if (state.focused || state.hovered)
        paintFocusRing(painter, theme(), item.rect.adjusted(-2, -2, 2, 2), metrics::kControlRadius);
}

void RecentColours::hoverMoved(int item, QPointF) {
    const auto* one = item < 0 ? nullptr : &items()[static_cast<std::size_t>(item)];
    setToolTip(one ? one->name + QLatin1Char('\n') + one->value : QString());
}

void RecentColours::choose(int item) {
    if (item < 0) return;
    setFocused(item);
    if (chosen) chosen(colours_[items()[static_cast<std::size_t>(item)].index]);
}

void RecentColours::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) choose(itemAt(event->position()));
}

void RecentColours::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space)
        choose(focused());
    else
        Canvas::keyPressEvent(event);
}

} // namespace tintra
