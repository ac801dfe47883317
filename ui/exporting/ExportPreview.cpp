#include "ui/exporting/ExportPreview.h"

#include "ui/Ui.h"
#include "ui/shared/Controls.h"
#include "ui/shared/Figures.h"
#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

namespace tintra {
namespace {

constexpr int kTop = 14, kSide = 16;
constexpr int kNumberGap = 14;
constexpr int kLine = 20, kRow = 36;
constexpr int kChip = 10, kChipGap = 6;
constexpr int kRowChip = 20;

} // namespace

ExportPreview::ExportPreview(Ui& ui, QWidget* parent) : Canvas(ui.theme, parent), ui_(ui) {
    setAccessibleName(worded("Preview of the file"));
}

void ExportPreview::setSample(ExportSample sample) {
    sample_ = std::move(sample);
    setMinimumHeight(sizeHint().height());
    relayout();
}

int ExportPreview::lineHeight() const {
    return theme().scaled(kLine);
}

int ExportPreview::rowHeight() const {
    return theme().scaled(kRow);
}

int ExportPreview::margin() const {
    const QFontMetricsF metrics(theme().font(TextStyle::code));
    const auto digits = std::max<qsizetype>(2, QString::number(sample_.lines.size()).size());
    return kSide +
           static_cast<int>(
               metrics.horizontalAdvance(QLatin1Char('0')) * static_cast<qreal>(digits) + 6);
}

QSize ExportPreview::sizeHint() const {
    if (!sample_.picture.isNull()) return {300, 200};
    const auto lines = static_cast<int>(sample_.lines.size()) + (sample_.linesLeftOut > 0 ? 1 : 0);
    const auto rows = static_cast<int>(sample_.rows.size());
    return {300, 2 * kTop + lines * lineHeight() + rows * rowHeight()};
}

CanvasItem ExportPreview::pictureItem(QSizeF size) const {
    const auto room = size - QSizeF(2 * kSide, 2 * kSide);
    QSizeF shown = sample_.pictureSize;
    if (shown.width() > room.width() || shown.height() > room.height())
        shown.scale(room, Qt::KeepAspectRatio);
    CanvasItem item;
    item.rect = QRectF(QPointF((size.width() - shown.width()) / 2, kSide), shown);
    item.kind = picture;
    item.role = QAccessible::Graphic;
    item.name = worded("Picture of the palette");
    item.value = QStringLiteral("%1 × %2")
                     .arg(sample_.pictureSize.width())
                     .arg(sample_.pictureSize.height());
    return item;
}

std::vector<CanvasItem> ExportPreview::layoutItems(QSizeF size) const {
    std::vector<CanvasItem> items;
    if (!sample_.picture.isNull()) {
        items.push_back(pictureItem(size));
        return items;
    }
    qreal y = kTop;
    const auto add = [&](Kind kind, std::size_t index, qreal height, QString name) -> CanvasItem& {
        CanvasItem item;
        item.rect = QRectF(0, y, size.width(), height);
        item.kind = kind;
        item.index = index;
        item.role = kind == row ? QAccessible::ListItem : QAccessible::StaticText;
        item.name = std::move(name);
        y += height;
        items.push_back(std::move(item));
        return items.back();
    };
    items.reserve(sample_.lines.size() + sample_.rows.size());
    for (std::size_t i = 0; i < sample_.lines.size(); ++i)
        add(line, i, lineHeight(), sample_.lines[i]);
    if (sample_.linesLeftOut > 0)
        add(rest, 0, lineHeight(),
            worded("and 1 more line", "and %n more lines",
                   static_cast<qsizetype>(sample_.linesLeftOut)));
    for (std::size_t i = 0; i < sample_.rows.size(); ++i) {
        auto& item = add(row, i, rowHeight(), sample_.rows[i].name);
        item.value = sample_.rows[i].code;
        item.description = sample_.rows[i].lost;
    }
    return items;
}

int ExportPreview::neighbour(int from, Qt::Key key) const {
    const auto last = static_cast<int>(items().size()) - 1;
    const auto visible = visibleRegion().boundingRect().height();
    const auto page = std::max(1, visible / lineHeight() - 1);
    switch (key) {
    case Qt::Key_Home:
        return std::min(0, last);
    case Qt::Key_End:
        return last;
    case Qt::Key_Up:
        return std::max(from - 1, std::min(0, last));
    case Qt::Key_Down:
        return std::min(from + 1, last);
    case Qt::Key_PageUp:
        return std::max(from - page, std::min(0, last));
    case Qt::Key_PageDown:
        return std::min(from + page, last);
    default:
        return from;
    }
}

void ExportPreview::focusMoved(int item) {
    if (item >= 0 && wantsVisible)
        wantsVisible(items()[static_cast<std::size_t>(item)].rect.toAlignedRect());
}

void ExportPreview::paintGround(QPainter& painter, const QRect& dirty) {
    painter.fillRect(dirty, theme().color(Token::raised));
}

void ExportPreview::paintItem(QPainter& painter, const CanvasItem& item, ItemState state) {
    switch (static_cast<Kind>(item.kind)) {
    case line:
        paintLine(painter, item);
        break;
    case row:
        paintRow(painter, item);
        break;
    case picture:
        paintPicture(painter, item.rect);
        break;
    case rest:
        painter.setFont(theme().font(TextStyle::small));
        painter.setPen(theme().color(Token::ink3));
        painter.drawText(item.rect.adjusted(margin() + kNumberGap, 0, 0, 0), Qt::AlignVCenter,
                         item.name);
        break;
    }
    if (state.focused)
        paintFocusRing(painter, theme(), item.rect.adjusted(4, 1, -4, -1), metrics::kChipRadius);
}

void ExportPreview::paintLine(QPainter& painter, const CanvasItem& item) const {
    painter.setFont(theme().font(TextStyle::code));
    painter.setLayoutDirection(Qt::LeftToRight);
    const auto edge = qreal(margin());
    painter.setPen(theme().color(Token::ink3));
    painter.drawText(QRectF(0, item.rect.top(), edge, item.rect.height()),
                     Qt::AlignRight | Qt::AlignVCenter, QString::number(item.index + 1));
    painter.setPen(theme().color(Token::ink));
    const auto& text = sample_.lines[item.index];
    auto room = item.rect.adjusted(edge + kNumberGap, 0, -kSide, 0);
    const auto chip =
        std::ranges::lower_bound(sample_.chips, item.index, {}, &ExportSample::Chip::line);
    const bool holdsCode = chip != sample_.chips.end() && chip->line == item.index;
    const QFontMetricsF metrics(painter.font());
    const auto before = holdsCode ? text.left(chip->character) : QString();
    const auto taken = metrics.horizontalAdvance(before);
    if (!holdsCode || taken + kChip + kChipGap > room.width()) {
        painter.drawText(room, Qt::AlignVCenter | Qt::TextSingleLine,
                         metrics.elidedText(text, Qt::ElideRight, room.width()));
        return;
    }
    painter.drawText(room, Qt::AlignVCenter | Qt::TextSingleLine, before);
    room.setLeft(room.left() + taken);
    const QRectF square(room.left(), room.center().y() - kChip / 2.0, kChip, kChip);
    ui_.painter.fill(painter, square, chip->color, Vision::typical, {2, 2, 2, 2});
    ui_.painter.hairline(painter, square, 2);
    room.setLeft(square.right() + kChipGap);
    painter.setPen(theme().color(Token::ink));
    painter.drawText(room, Qt::AlignVCenter | Qt::TextSingleLine,
                     metrics.elidedText(text.mid(chip->character), Qt::ElideRight, room.width()));
}

void ExportPreview::paintRow(QPainter& painter, const CanvasItem& item) const {
    const auto& entry = sample_.rows[item.index];
    auto room = item.rect.adjusted(kSide, 0, -kSide, 0);
    const auto side = theme().scaled(kRowChip);
    ui_.painter.chip(painter, QRectF(room.left(), room.center().y() - side / 2.0, side, side),
                     entry.color, Vision::typical);
    room.setLeft(room.left() + side + 12);
    painter.setFont(theme().font(TextStyle::code));
    painter.setPen(theme().color(Token::ink2));
    painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter, entry.code);
    room.setRight(room.right() - QFontMetricsF(painter.font()).horizontalAdvance(entry.code) - 16);
    painter.setFont(theme().font(TextStyle::small));
    painter.setPen(theme().color(Token::ink3));
    painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter, entry.lost);
    if (!entry.lost.isEmpty())
        room.setRight(room.right() - QFontMetricsF(painter.font()).horizontalAdvance(entry.lost) -
                      16);
    painter.setFont(theme().font(TextStyle::control));
    painter.setPen(theme().color(Token::ink));
    painter.drawText(
        room, Qt::AlignLeft | Qt::AlignVCenter,
        QFontMetricsF(painter.font()).elidedText(entry.name, Qt::ElideRight, room.width()));
}

void ExportPreview::paintPicture(QPainter& painter, const QRectF& in) const {
    // What is translucent shows on the checks.
    ui_.painter.fill(painter, in, {0, 0, 0, 0}, Vision::typical);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(in, sample_.picture);
    ui_.painter.hairline(painter, in, 0);
    painter.setFont(theme().font(TextStyle::caption));
    painter.setPen(theme().color(Token::ink3));
    drawFigures(
        painter,
        QRectF(in.left(), in.bottom() + 8, in.width(), theme().lineHeight(TextStyle::caption)),
        Qt::AlignHCenter | Qt::AlignVCenter,
        QStringLiteral("%1 × %2")
            .arg(sample_.pictureSize.width())
            .arg(sample_.pictureSize.height()));
}

} // namespace tintra
