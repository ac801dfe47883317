#include "ui/settings/FormatList.h"

#include "ui/shared/Controls.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

namespace tintra {
namespace {

constexpr int kRow = 28, kHeading = 30, kSide = 10, kStar = 16, kStarPlace = 32;
constexpr int kPage = 10; ///< rows that Page Up and Page Down pass

ColorFormat formatOf(const CanvasItem& item) {
    return static_cast<ColorFormat::Case>(item.index);
}

} // namespace

FormatList::FormatList(Theme& theme, Preferences& preferences, QWidget* parent)
    : Canvas(theme, parent), preferences_(preferences),
      formatChanged_(preferences.format, [this] { relayout(); }),
      favouritesChanged_(preferences.formatFavourites, [this] { relayout(); }),
      themeChanged_(theme.version(), [this] { measure(); }) {
    setAccessibleName(worded("Formats of code"));
    measure();
}

void FormatList::measure() {
    const auto families = static_cast<int>(ColorFormat::families().size());
    const auto formats = static_cast<int>(ColorFormat::all().size());
    setMinimumHeight(families * theme().scaled(kHeading) + formats * theme().scaled(kRow) + 4);
    relayout();
}

bool FormatList::isFavourite(ColorFormat of) const {
    return std::ranges::find(preferences_.formatFavourites.value(), of) !=
           preferences_.formatFavourites.value().end();
}

void FormatList::toggleFavourite(ColorFormat of) {
    auto favourites = preferences_.formatFavourites.value();
    // A new one comes last, so that the number keys of the others stay as they are.
    if (std::erase(favourites, of) == 0) favourites.push_back(of);
    preferences_.formatFavourites = std::move(favourites);
}

std::vector<CanvasItem> FormatList::layoutItems(QSizeF size) const {
    std::vector<CanvasItem> items;
    for (std::size_t family = 0; family < ColorFormat::families().size(); ++family)
        addFamily(items, family, size.width());
    return items;
}

void FormatList::addFamily(std::vector<CanvasItem>& items, std::size_t family, qreal width) const {
    const auto& of = ColorFormat::families()[family];
    const auto title = fromUtf8(of.title);
    auto y = items.empty() ? 2 : items.back().rect.bottom();
    const auto headingHeight = theme().scaled(kHeading), rowHeight = theme().scaled(kRow);
    CanvasItem head{.rect = QRectF(0, y, width, headingHeight), .kind = heading, .index = family};
    head.name = title;
    items.push_back(head);
    y += headingHeight;
    for (const auto one : of.formats) {
        const bool starred = isFavourite(one);
        const auto index = static_cast<std::size_t>(static_cast<ColorFormat::Case>(one));
        CanvasItem item{.rect = QRectF(1, y, width - 2, rowHeight), .kind = format, .index = index};
        item.role = QAccessible::ListItem;
        item.name = fromUtf8(one.title());
        item.value = starred ? worded("favourite") : QString();
        item.description = title;
        item.selected = one == preferences_.format.value();
        items.push_back(item);
        const auto place = theme().scaled(kStarPlace);
        CanvasItem mark{
            .rect = QRectF(width - 1 - place, y, place, rowHeight), .kind = star, .index = index};
        mark.role = QAccessible::CheckBox;
        mark.name = worded("Favourite");
        mark.description = item.name;
        mark.selected = item.selected;
        mark.checked = starred;
        items.push_back(mark);
        y += rowHeight;
    }
}

void FormatList::paintGround(QPainter& painter, const QRect& dirty) {
    painter.fillRect(dirty, theme().color(Token::raised));
}

void FormatList::paintItem(QPainter& painter, const CanvasItem& item, ItemState state) {
    if (item.kind == star) return paintStar(painter, item, state);
    const bool isHeading = item.kind == heading;
    if (item.selected || (state.hovered && !isHeading)) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme().color(item.selected ? Token::sel : Token::hover));
        painter.drawRoundedRect(item.rect, metrics::kChipRadius, metrics::kChipRadius);
    }
    const auto ink = theme().color(item.selected ? Token::onsel
                                   : isHeading   ? Token::ink3
                                                 : Token::ink);
    auto font = theme().font(isHeading ? TextStyle::caption : TextStyle::body, ink);
    if (isHeading) font.setWeight(QFont::DemiBold);
    painter.setFont(font);
    painter.setPen(ink);
    const auto end = isHeading ? kSide : theme().scaled(kStarPlace);
    const auto words = item.rect.adjusted(kSide, isHeading ? 8 : 0, -end, 0);
    painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter,
                     QFontMetricsF(font).elidedText(item.name, Qt::ElideRight, words.width()));
    if (state.focused)
        paintFocusRing(painter, theme(), item.rect.adjusted(2, 2, -2, -2), metrics::kChipRadius);
}

void FormatList::paintStar(QPainter& painter, const CanvasItem& item, ItemState state) const {
    const bool starred = item.checked.value_or(false);
    // Within the row that the pointer then no longer counts to.
    if (state.hovered && !item.selected) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme().color(Token::hover));
        painter.drawRoundedRect(item.rect.adjusted(2, 2, -2, -2), metrics::kChipRadius,
                                metrics::kChipRadius);
    }
    const auto ink = theme().color(item.selected ? Token::onsel : Token::ink);
    painter.drawPixmap(
        item.rect.center() - QPointF(kStar / 2.0, kStar / 2.0),
        theme().icon(starred ? "star-filled" : "star", kStar, ink, devicePixelRatioF()));
}

int FormatList::neighbour(int from, Qt::Key key) const {
    std::vector<int> rows;
    for (std::size_t i = 0; i < items().size(); ++i)
        if (items()[i].kind == format) rows.push_back(static_cast<int>(i));
    const auto last = static_cast<int>(rows.size()) - 1;
    auto at = static_cast<int>(std::ranges::find(rows, from) - rows.begin());
    if (at > last)
        at = static_cast<int>(
            std::ranges::find_if(
                rows, [&](int row) { return items()[static_cast<std::size_t>(row)].selected; }) -
            rows.begin());
    else if (key == Qt::Key_Home)
        at = 0;
    else if (key == Qt::Key_End)
        at = last;
    else if (key == Qt::Key_Up || key == Qt::Key_PageUp)
        at -= key == Qt::Key_Up ? 1 : kPage;
    else if (key == Qt::Key_Down || key == Qt::Key_PageDown)
        at += key == Qt::Key_Down ? 1 : kPage;
    return rows[static_cast<std::size_t>(std::clamp(at, 0, last))];
}

void FormatList::focusMoved(int item) {
    if (item >= 0 && reveal) reveal(items()[static_cast<std::size_t>(item)].rect);
}

void FormatList::mousePressEvent(QMouseEvent* event) {
    const auto at = itemAt(event->position());
    if (at < 0 || event->button() != Qt::LeftButton) return;
    if (items()[static_cast<std::size_t>(at)].kind != heading) activate(at);
}

void FormatList::activate(int item) {
    const auto chosen = items()[static_cast<std::size_t>(item)];
    setFocused(find(format, chosen.index));
    if (chosen.kind == star)
        toggleFavourite(formatOf(chosen));
    else
        preferences_.format = formatOf(chosen);
}

void FormatList::keyPressEvent(QKeyEvent* event) {
    const bool stars = event->key() == Qt::Key_Space;
    const bool chooses = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (focused() < 0 || (!stars && !chooses)) return Canvas::keyPressEvent(event);
    const auto chosen = formatOf(items()[static_cast<std::size_t>(focused())]);
    if (stars)
        toggleFavourite(chosen);
    else
        preferences_.format = chosen;
}

} // namespace tintra
