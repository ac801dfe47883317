#include "ui/help/RowList.h"

#include "ui/shared/Controls.h"
#include "ui/shared/Theme.h"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>
#include <numeric>

namespace tintra {
namespace {

constexpr int kGap = 48, kHeading = 30, kBeforeHeading = 6, kUnderHeading = 6;

} // namespace

RowList::RowList(Theme& theme, int columnWidth, int rowHeight, QWidget* parent)
    : Canvas(theme, parent), columnWidth_(columnWidth), rowHeight_(rowHeight) {
    subscriptions_.add(theme.version(), [this] { setRows(std::move(rows_)); });
}

void RowList::setRows(std::vector<Row> rows) {
    rows_ = std::move(rows);
    setMinimumHeight(heightNeeded(width()));
    relayout();
}

void RowList::setEmptyText(const QString& text) {
    empty_ = text;
}

int RowList::heightOf(std::size_t row) const {
    if (!rows_[row].isHeading) return theme().scaled(rowHeight_);
    return theme().scaled(kHeading) + (row == 0 ? 0 : kBeforeHeading);
}

int RowList::columns(int width) const {
    return std::max(1, (width + kGap) / (theme().scaled(columnWidth_) + kGap));
}

std::vector<int> RowList::columnOfRows(int columns) const {
    int whole = 0;
    for (std::size_t i = 0; i < rows_.size(); ++i)
        whole += heightOf(i);
    std::vector<int> result;
    int column = 0, filled = 0;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        if (rows_[i].isHeading && filled * columns >= whole && column + 1 < columns) {
            ++column;
            filled = 0;
        }
        filled += heightOf(i);
        result.push_back(column);
    }
    return result;
}

int RowList::heightNeeded(int width) const {
    const auto places = columnOfRows(columns(width));
    std::vector<int> heights(static_cast<std::size_t>(columns(width)), 0);
    for (std::size_t i = 0; i < rows_.size(); ++i)
        heights[static_cast<std::size_t>(places[i])] += heightOf(i);
    return *std::ranges::max_element(heights);
}

std::vector<CanvasItem> RowList::layoutItems(QSizeF size) const {
    const auto count = columns(static_cast<int>(size.width()));
    const auto places = columnOfRows(count);
    const auto wide = (static_cast<int>(size.width()) - (count - 1) * kGap) / count;
    std::vector<int> tops(static_cast<std::size_t>(count), 0);
    std::vector<CanvasItem> items;
    QString heading;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        auto& top = tops[static_cast<std::size_t>(places[i])];
        CanvasItem item;
        const auto high = heightOf(i);
        item.rect = QRectF(places[i] * (wide + kGap), top, wide, high);
        item.index = i;
        if (rows_[i].isHeading) {
            heading = item.name = rows_[i].text;
            // The space before a heading that begins a column is not needed.
            if (top == 0) item.rect.setHeight(theme().scaled(kHeading));
        } else {
            item.role = QAccessible::ListItem;
            item.name = rows_[i].text;
            item.value = rows_[i].value;
            item.description = heading;
        }
        top += static_cast<int>(item.rect.height());
        items.push_back(std::move(item));
    }
    return items;
}

void RowList::resizeEvent(QResizeEvent* event) {
    const auto needed = heightNeeded(width());
    if (needed != minimumHeight()) setMinimumHeight(needed);
    Canvas::resizeEvent(event);
}

void RowList::paintGround(QPainter& painter, const QRect& dirty) {
    painter.fillRect(dirty, theme().color(Token::panel));
    if (!rows_.empty()) return;
    painter.setFont(theme().font(TextStyle::body));
    painter.setPen(theme().color(Token::ink3));
    painter.drawText(rect().adjusted(0, 24, 0, 0), Qt::AlignHCenter | Qt::AlignTop, empty_);
}

void RowList::paintItem(QPainter& painter, const CanvasItem& item, ItemState state) {
    const auto& row = rows_[item.index];
    if (row.isHeading) {
        auto font = theme().font(TextStyle::small);
        font.setWeight(QFont::DemiBold);
        painter.setFont(font);
        painter.setPen(theme().color(Token::ink3));
        painter.drawText(item.rect.adjusted(0, 0, 0, -kUnderHeading),
                         Qt::AlignLeft | Qt::AlignBottom, row.text);
        return;
    }
    const auto words = theme().font(TextStyle::body), keys = theme().font(TextStyle::small);
    const auto taken = QFontMetrics(keys).horizontalAdvance(row.value);
    painter.setFont(keys);
    painter.setPen(theme().color(Token::ink2));
    painter.drawText(item.rect, Qt::AlignRight | Qt::AlignVCenter, row.value);
    painter.setFont(words);
    painter.setPen(theme().color(Token::ink));
    const auto room = item.rect.adjusted(0, 0, -taken - 12, 0);
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter,
                     QFontMetricsF(words).elidedText(row.text, Qt::ElideRight, room.width()));
    if (state.focused)
        paintFocusRing(painter, theme(), item.rect.adjusted(1, 1, -1, -1), metrics::kChipRadius);
}

} // namespace tintra
