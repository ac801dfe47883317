#include "ui/exporting/ExportFormatList.h"

#include "ui/shared/Controls.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace tintra {
namespace {

constexpr int kTop = 12, kSide = 8, kRow = 32, kGap = 2, kInset = 10, kWidth = 231;

QString extensionOf(ExportFormat format) {
    return QLatin1Char('.') + fromUtf8(fileExtension(format));
}

} // namespace

ExportFormatList::ExportFormatList(Theme& theme, QWidget* parent) : Canvas(theme, parent) {
    setAccessibleName(worded("Format"));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum);
}

QSize ExportFormatList::sizeHint() const {
    const auto count = static_cast<int>(allExportFormats().size());
    return {theme().scaled(kWidth), 2 * kTop + count * (theme().scaled(kRow) + kGap) - kGap};
}

std::vector<CanvasItem> ExportFormatList::layoutItems(QSizeF size) const {
    std::vector<CanvasItem> items;
    qreal y = kTop;
    for (const auto format : allExportFormats()) {
        CanvasItem item;
        item.rect = QRectF(kSide, y, size.width() - 2 * kSide, theme().scaled(kRow));
        item.index = items.size();
        item.role = QAccessible::ListItem;
        item.name = shown(title(format));
        item.value = extensionOf(format);
        item.selected = format == chosen_;
        y = item.rect.bottom() + kGap;
        items.push_back(std::move(item));
    }
    return items;
}

void ExportFormatList::choose(ExportFormat format) {
    chosen_ = format;
    relayout();
    setFocused(static_cast<int>(format));
}

void ExportFormatList::chooseItem(int item) {
    if (item < 0) return;
    const auto format = allExportFormats()[items()[static_cast<std::size_t>(item)].index];
    if (format == chosen_) return;
    chosen_ = format;
    relayout();
    if (changed) changed(format);
}

void ExportFormatList::focusMoved(int item) {
    if (item < 0) return;
    chooseItem(item);
    if (wantsVisible) wantsVisible(items()[static_cast<std::size_t>(item)].rect.toAlignedRect());
}

void ExportFormatList::mousePressEvent(QMouseEvent* event) {
    setFocused(itemAt(event->position()));
    setFocused(static_cast<int>(chosen_));
}

int ExportFormatList::nextWith(const QString& letter) const {
    const auto count = static_cast<int>(items().size());
    for (int step = 1; step <= count; ++step) {
        const auto at = (static_cast<int>(chosen_) + step) % count;
        if (items()[static_cast<std::size_t>(at)].name.startsWith(letter, Qt::CaseInsensitive))
            return at;
    }
    return -1;
}

void ExportFormatList::keyPressEvent(QKeyEvent* event) {
    const auto letter = event->text();
    const bool isPlain = !(event->modifiers() & ~Qt::ShiftModifier);
    if (isPlain && letter.size() == 1 && letter[0].isLetter()) {
        if (const auto item = nextWith(letter); item >= 0) setFocused(item);
        return;
    }
    Canvas::keyPressEvent(event);
}

void ExportFormatList::resizeEvent(QResizeEvent* event) {
    Canvas::resizeEvent(event);
    const auto at = static_cast<std::size_t>(chosen_);
    if (wantsVisible && at < items().size()) wantsVisible(items()[at].rect.toAlignedRect());
}

void ExportFormatList::focusInEvent(QFocusEvent* event) {
    setFocused(static_cast<int>(chosen_));
    Canvas::focusInEvent(event);
}

void ExportFormatList::paintGround(QPainter& painter, const QRect& dirty) {
    painter.fillRect(dirty, theme().color(Token::panel));
}

void ExportFormatList::paintItem(QPainter& painter, const CanvasItem& item, ItemState state) {
    if (item.selected || state.hovered) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme().color(item.selected ? Token::sel : Token::hover));
        painter.drawRoundedRect(item.rect, metrics::kControlRadius, metrics::kControlRadius);
    }
    const auto words = item.rect.adjusted(kInset, 0, -kInset, 0);
    const auto ink = theme().color(item.selected ? Token::onsel : Token::ink);
    painter.setFont(theme().font(TextStyle::control, ink));
    painter.setPen(ink);
    painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter, item.name);
    painter.setFont(theme().font(TextStyle::codeOnSide));
    if (!item.selected) painter.setPen(theme().color(Token::ink3));
    painter.drawText(words, Qt::AlignRight | Qt::AlignVCenter, item.value);
    if (state.focused)
        paintFocusRing(painter, theme(), item.rect.adjusted(-2, -2, 2, 2),
                       metrics::kControlRadius + 2);
}

} // namespace tintra
