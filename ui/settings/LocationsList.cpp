#include "ui/settings/LocationsList.h"

#include "state/Models.h"
#include "ui/shared/Badge.h"
#include "ui/shared/Controls.h"
#include "ui/shared/LocationMenu.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QContextMenuEvent>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <algorithm>

namespace tintra {
namespace {

constexpr int kRow = 44, kCheck = 16, kEdge = 10, kWords = 36, kChevron = 28, kIcon = 16;
constexpr int kGap = 8;
constexpr qsizetype kLongestTag = 24;

} // namespace

LocationsList::LocationsList(Ui& ui, PaletteLocations& locations, QWidget* parent)
    : Canvas(ui.theme, parent), ui_(ui), locations_(locations),
      changed_(ui.models.preferences().paletteLocations, [this] { takeLocations(); }),
      scanned_(ui.models.libraryVersion(), [this] { relayout(); }),
      themeChanged_(ui.theme.version(), [this] { takeLocations(); }) {
    setAccessibleName(worded("Folders"));
    takeLocations();
}

void LocationsList::takeLocations() {
    setMinimumHeight(heightWanted());
    relayout();
}

int LocationsList::heightWanted() const {
    return static_cast<int>(all().size()) * theme().scaled(kRow);
}

const std::vector<PaletteLocation>& LocationsList::all() const {
    return ui_.models.preferences().paletteLocations.value();
}

bool LocationsList::isOnline(const PaletteLocation& location) const {
    return ui_.models.store().isOnline(location.id);
}

CanvasItem LocationsList::rowItem(std::size_t index, const QRectF& rect) const {
    const auto& location = all()[index];
    QStringList said;
    if (location.tag) said << oneLine(*location.tag, kLongestTag);
    if (!isOnline(location)) said << worded("OFFLINE");
    return {.rect = rect,
            .kind = row,
            .index = index,
            .role = QAccessible::CheckBox,
            .name = oneLine(location.nickname),
            .value = shownPath(location.path),
            .description = said.join(QStringLiteral(", ")),
            .checked = location.isEnabled};
}

std::vector<CanvasItem> LocationsList::layoutItems(QSizeF size) const {
    std::vector<CanvasItem> items;
    const auto height = theme().scaled(kRow), side = theme().scaled(kChevron);
    for (std::size_t i = 0; i < all().size(); ++i) {
        const QRectF rect(0, static_cast<int>(i) * height, size.width(), height);
        items.push_back(rowItem(i, rect));
        items.push_back(
            {.rect = QRectF(rect.right() - side - 6, rect.center().y() - side / 2.0, side, side),
             .kind = chevron,
             .index = i,
             .role = QAccessible::ButtonMenu,
             .name = worded("Actions for %1").arg(oneLine(all()[i].nickname))});
    }
    return items;
}

void LocationsList::paintGround(QPainter& painter, const QRect& dirty) {
    painter.fillRect(dirty, theme().color(Token::raised));
}

void LocationsList::paintItem(QPainter& painter, const CanvasItem& item, ItemState state) {
    const auto& location = all()[item.index];
    if (item.kind == row)
        paintRow(painter, location, item.rect);
    else {
        if (state.hovered) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(theme().color(Token::hover));
            painter.drawRoundedRect(item.rect, metrics::kControlRadius, metrics::kControlRadius);
        }
        painter.drawPixmap(
            item.rect.center() - QPointF(kIcon / 2.0, kIcon / 2.0),
            theme().icon("chevron-down", kIcon, theme().color(Token::ink2), devicePixelRatioF()));
    }
    if (state.focused)
        paintFocusRing(painter, theme(), item.rect.adjusted(2, 2, -2, -2), metrics::kControlRadius);
}

void LocationsList::paintRow(QPainter& painter, const PaletteLocation& location,
                             const QRectF& rect) const {
    if (rect.top() > 0)
        painter.fillRect(QRectF(rect.left(), rect.top(), rect.width(), 1),
                         theme().color(Token::line));
    QStyleOptionButton check;
    const auto side = theme().scaled(kCheck);
    check.rect = QRect(kEdge, static_cast<int>(rect.center().y()) - side / 2, side, side);
    check.state =
        QStyle::State_Enabled | (location.isEnabled ? QStyle::State_On : QStyle::State_Off);
    style()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &check, &painter, this);

    const auto left = theme().scaled(kWords);
    const auto room = paintBadges(painter, location, rect) - left;
    const auto line = theme().lineHeight(TextStyle::body),
               under = theme().lineHeight(TextStyle::small);
    const auto top = rect.center().y() - (line + under) / 2.0;
    const auto write = [&](TextStyle style, Token ink, qreal y, int height, const QString& text,
                           Qt::TextElideMode elide) {
        const auto font = theme().font(style);
        painter.setFont(font);
        painter.setPen(theme().color(ink));
        painter.drawText(QRectF(left, y, room, height), Qt::AlignLeft | Qt::AlignVCenter,
                         QFontMetricsF(font).elidedText(text, elide, room));
    };
    write(TextStyle::body, Token::ink, top, line, oneLine(location.nickname), Qt::ElideRight);
    write(TextStyle::small, Token::ink3, top + line, under, shownPath(location.path),
          Qt::ElideMiddle);
}

qreal LocationsList::paintBadges(QPainter& painter, const PaletteLocation& location,
                                 const QRectF& rect) const {
    auto right = rect.right() - theme().scaled(kChevron) - 6 - kGap;
    const auto middle = rect.center().y();
    const auto paint = [&](const QString& text, BadgeFill fill) {
        right -= badgeWidth(theme(), text);
        paintBadge(painter, theme(), text, right, middle, fill);
        right -= kGap;
    };
    if (!isOnline(location)) paint(worded("OFFLINE"), BadgeFill::yes);
    if (location.tag) paint(oneLine(*location.tag, kLongestTag), BadgeFill::no);
    return right;
}

void LocationsList::focusMoved(int item) {
    if (item >= 0 && reveal) reveal(items()[static_cast<std::size_t>(item)].rect);
}

void LocationsList::mousePressEvent(QMouseEvent* event) {
    const auto at = itemAt(event->position());
    if (at < 0 || event->button() != Qt::LeftButton) return;
    setFocused(at);
    activate(at);
}

void LocationsList::activate(int item) {
    const auto chosen = items()[static_cast<std::size_t>(item)];
    if (chosen.kind == row)
        toggle(chosen.index);
    else
        openMenu(chosen.index);
}

void LocationsList::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const auto at = byKey ? focused() : itemAt(QPointF(event->pos()));
    if (at >= 0) openMenu(items()[static_cast<std::size_t>(at)].index);
}

void LocationsList::keyPressEvent(QKeyEvent* event) {
    const bool presses = event->key() == Qt::Key_Space;
    const bool opens = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (focused() < 0 || (!presses && !opens)) return Canvas::keyPressEvent(event);
    if (presses)
        activate(focused());
    else
        openMenu(items()[static_cast<std::size_t>(focused())].index);
}

void LocationsList::toggle(std::size_t index) {
    const auto location = all()[index];
    locations_.setEnabled(location.id, !location.isEnabled);
}

void LocationsList::openMenu(std::size_t index) {
    // The list may change while the menu is open; what is chosen then goes by identifier.
    const auto location = all()[index];
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fillLocationMenu(*menu, locations_, location);
    const auto at = find(chevron, index);
    const auto under = items()[static_cast<std::size_t>(at)].rect.toAlignedRect();
    menu->popup(mapToGlobal(under.bottomLeft()));
}

} // namespace tintra
