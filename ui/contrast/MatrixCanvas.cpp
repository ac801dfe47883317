#include "ui/contrast/MatrixCanvas.h"

#include "state/Models.h"
#include "state/UpdateGroup.h"
#include "ui/contrast/ChosenItem.h"
#include "ui/contrast/CopyFigure.h"
#include "ui/contrast/PairColours.h"
#include "ui/shared/Controls.h"
#include "ui/shared/Figures.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QContextMenuEvent>
#include <QFontMetricsF>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace tintra {
namespace {

constexpr int kMargin = 20, kRowHead = 150, kNarrowHead = 48, kHeadChip = 32, kChipHigh = 32;
constexpr int kHeadInset = 4, kHeadLine = 14;
constexpr int kColumnHead = 68, kCell = 76, kCellHigh = 46, kLeastCell = 48, kCellGap = 4;

/// Of marks: AAA, AA, 3:1.
QFont markFont(const Theme& theme, const QColor& ink) {
    auto font = theme.font(TextStyle::name, ink);
    font.setPixelSize(theme.scaled(10));
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0.3);
    return font;
}

} // namespace

MatrixCanvas::MatrixCanvas(Ui& ui, QWidget* parent)
    : Canvas(ui.theme, parent), ui_(ui), board_(ui.models.contrast()) {
    containerRole = QAccessible::Table;
    setAccessibleName(worded("Every pair"));
    const auto again = [this] { upkeep_.due(); };
    subscriptions_.add(board_.content(), again);
    subscriptions_.add(board_.measure, again);
    subscriptions_.add(board_.target, again);
    subscriptions_.add(board_.size, again);
    subscriptions_.add(board_.weight, again);
    subscriptions_.add(board_.matrixRowsAreText, again);
    subscriptions_.add(board_.vision, [this] { update(); });
    subscriptions_.add(ui.theme.version(), again);
    upkeep_.due();
}

void MatrixCanvas::sync() {
    const auto entries = board_.matrixEntries();
    const auto terms = contrastTerms(board_);
    names_.clear();
    for (const auto& entry : entries)
        names_.push_back(oneLine(board_.name(entry), 60));
    readings_.clear();
    for (std::size_t i = 0; i < count() * count(); ++i) {
        const auto [text, ground] = pairOf(i);
        readings_.push_back(contrastReading(text->color, ground->color, terms));
    }
    setMinimumHeight(heightNeeded());
    relayout();
}

MatrixCanvas::Pair MatrixCanvas::pairOf(std::size_t index) const {
    const auto entries = board_.matrixEntries();
    const auto* row = &entries[index / count()];
    const auto* column = &entries[index % count()];
    return board_.matrixRowsAreText ? Pair{row, column} : Pair{column, row};
}

MatrixCanvas::Passing MatrixCanvas::passing() const {
    Passing all{0, count() * (count() - std::min<std::size_t>(1, count()))};
    for (std::size_t i = 0; i < readings_.size(); ++i)
        if (i / count() != i % count() && readings_[i].reachesTarget) ++all.passing;
    return all;
}

std::optional<Uuid> MatrixCanvas::target() const {
    if (focused() < 0) return std::nullopt;
    const auto& item = items()[static_cast<std::size_t>(focused())];
    if (item.kind == cell || item.index >= count()) return std::nullopt;
    return board_.matrixEntries()[item.index].id;
}

QString MatrixCanvas::figureText() const {
    if (focused() < 0) return {};
    const auto& item = items()[static_cast<std::size_t>(focused())];
    if (item.kind != cell || item.index / count() == item.index % count()) return {};
    return figureToCopy(readings_[item.index], board_.measure);
}

int MatrixCanvas::heightNeeded() const {
    return theme().scaled(kColumnHead) + static_cast<int>(count()) * theme().scaled(kCellHigh) +
           kMargin;
}

MatrixCanvas::Grid MatrixCanvas::grid(qreal width) const {
    const auto columns = std::max<qreal>(1, static_cast<qreal>(count()));
    const auto room = width - 2 * kMargin;
    const auto usual = columns * theme().scaled(kCell);
    const bool hasNames = room - theme().scaled(kRowHead) >= usual * 0.9;
    const auto head = theme().scaled(hasNames ? kRowHead : kNarrowHead);
    const auto wide = std::clamp<qreal>(std::floor((room - head) / columns),
                                        theme().scaled(kLeastCell), theme().scaled(kCell));
    return {qreal(kMargin + head), qreal(theme().scaled(kColumnHead)),
            QSizeF(wide, theme().scaled(kCellHigh))};
}

CanvasItem MatrixCanvas::cellItem(std::size_t index, const QRectF& in) const {
    const auto row = index / count(), column = index % count();
    const bool rowsAreText = board_.matrixRowsAreText;
    CanvasItem item;
    item.rect = in;
    item.kind = cell;
    item.index = index;
    item.role = QAccessible::Cell;
    item.name = worded("%1 on %2")
                    .arg(names_[rowsAreText ? row : column], names_[rowsAreText ? column : row]);
    if (row == column) {
        item.description = worded("The same colour");
        return item;
    }
    item.value = spokenFigure(readings_[index], board_.measure);
    item.description = worded(readings_[index].reachesTarget ? "passes" : "fails");
    const auto [text, ground] = pairOf(index);
    item.selected = text->id == board_.textID() && ground->id == board_.groundID();
    return item;
}

std::vector<CanvasItem> MatrixCanvas::layoutItems(QSizeF size) const {
    const auto [left, top, step] = grid(size.width());
    std::vector<CanvasItem> items;
    const auto head = [&](Kind kind, std::size_t at, const QRectF& in) {
        CanvasItem item;
        item.rect = in;
        item.kind = kind;
        item.index = at;
        item.role = kind == rowHead ? QAccessible::RowHeader : QAccessible::ColumnHeader;
        item.name = names_[at];
        const bool isText = (kind == rowHead) == board_.matrixRowsAreText.value();
        item.description = worded(isText ? "Text" : "Ground");
        items.push_back(std::move(item));
    };
    const QSizeF inner(step.width() - kCellGap, step.height() - kCellGap);
    for (std::size_t i = 0; i < count(); ++i)
        head(columnHead, i,
             {left + static_cast<qreal>(i) * step.width(), 0, inner.width(), top - kCellGap});
    for (std::size_t i = 0; i < count(); ++i)
        head(rowHead, i,
             {qreal(kMargin), top + static_cast<qreal>(i) * step.height(),
              left - kMargin - kCellGap, inner.height()});
    for (std::size_t i = 0; i < count() * count(); ++i) {
        const QPointF at(left + static_cast<qreal>(i % count()) * step.width(),
                         top + static_cast<qreal>(i / count()) * step.height());
        items.push_back(cellItem(i, {at, inner}));
    }
    return items;
}

// Painting

void MatrixCanvas::paintHead(QPainter& painter, const CanvasItem& item) const {
    constexpr auto kRadius = metrics::kChipRadius;
    const auto& entry = board_.matrixEntries()[item.index];
    const qreal high = theme().scaled(kChipHigh);
    const bool isRow = item.kind == rowHead;
    const QRectF chip = isRow ? QRectF(item.rect.left(), item.rect.center().y() - high / 2,
                                       theme().scaled(kHeadChip), high)
                              : QRectF(item.rect.left(), item.rect.top(), item.rect.width(), high);
    ui_.painter.fill(painter, chip, entry.color, board_.vision,
                     {kRadius, kRadius, kRadius, kRadius});
    ui_.painter.hairline(painter, chip, kRadius);
    if (isRow) {
        const QRectF words(chip.right() + 10, item.rect.top(),
                           item.rect.right() - chip.right() - 14, item.rect.height());
        if (words.width() < 24) return;
        auto font = theme().font(TextStyle::control);
        font.setPixelSize(theme().scaled(12));
        painter.setPen(theme().color(Token::ink));
        lines_.paint(painter, font, words, Qt::AlignLeft,
                     lines_.cut(font, item.name, words.width()));
        return;
    }
    const auto font = theme().font(TextStyle::caption);
    painter.setPen(theme().color(Token::ink2));
    const auto room = item.rect.width() - kHeadInset;
    QRectF line(item.rect.left(), chip.bottom() + 4, item.rect.width(), theme().scaled(kHeadLine));
    for (const auto& words : lines_.twoLines(font, item.name, room)) {
        const auto aside = (line.width() - lines_.width(font, words)) / 2;
        lines_.paint(painter, font, line.adjusted(aside, 0, 0, 0), Qt::AlignLeft, words);
        line.translate(0, line.height());
    }
}

void MatrixCanvas::paintFigure(QPainter& painter, const QRectF& in, const ContrastReading& reading,
                               const QColor& ink, const QColor& sample) const {
    const auto font = theme().font(reading.reachesTarget ? TextStyle::name : TextStyle::body, ink);
    const auto markFace = markFont(theme(), ink);
    const auto figure = fromUtf8(reading.figure);
    const auto mark = fromUtf8(gradeMark(reading.grade, board_.measure));
    const auto figureWide = figuresWidth(font, figure);
    const auto markWide = mark.isEmpty() ? 0 : lines_.width(markFace, mark) + 5;
    const auto aa = sample.isValid() ? lines_.width(font, worded("Aa")) + 5 : 0;
    // All cells alike, as the fullest has to be.
    const auto fullest = figuresWidth(theme().font(TextStyle::name), QStringLiteral("10.0")) +
                         lines_.width(markFont(theme(), Qt::black), QStringLiteral("AAA")) + 5;
    const bool stacks = aa + fullest > in.width() - 4;
    const auto wide = aa + figureWide + (stacks ? 0 : markWide);
    auto line = in;
    if (stacks && !mark.isEmpty()) line.adjust(0, 0, 0, -in.height() * 0.36);
    auto left = in.center().x() - wide / 2;
    painter.setFont(font);
    if (aa > 0) {
        painter.setPen(sample);
        lines_.paint(painter, font, {left, line.top(), aa, line.height()}, Qt::AlignLeft,
                     worded("Aa"));
        left += aa;
    }
    painter.setPen(ink);
    drawFigures(painter, QRectF(left, line.top(), figureWide + 1, line.height()),
                Qt::AlignLeft | Qt::AlignVCenter, figure);
    if (stacks)
        line = QRectF(in.center().x() - lines_.width(markFace, mark) / 2,
                      in.top() + in.height() * 0.48, markWide, in.height() * 0.52);
    else
        line.translate(left + figureWide + 5 - line.left(), 1);
    lines_.paint(painter, markFace, line, Qt::AlignLeft, mark);
}

void MatrixCanvas::paintCell(QPainter& painter, const CanvasItem& item) const {
    const auto& in = item.rect;
    if (item.index / count() == item.index % count()) {
        painter.setFont(theme().font(TextStyle::body));
        painter.setPen(theme().color(Token::ink3));
        painter.drawText(in, Qt::AlignCenter, QStringLiteral("·"));
        return;
    }
    const auto& reading = readings_[item.index];
    if (!reading.reachesTarget) {
        paintFigure(painter, in, reading, theme().color(Token::ink3), {});
        return;
    }
    const auto [text, ground] = pairOf(item.index);
    const auto pair = seenPair(text->color, ground->color, board_.vision);
    painter.setPen(Qt::NoPen);
    painter.setBrush(pair.ground);
    painter.drawRoundedRect(in, metrics::kChipRadius, metrics::kChipRadius);
    // The text colour itself is legible from 4.5:1 on; below, or by another measure, the figure is
    // set apart from its sample.
    const bool tells = board_.measure.value() == ContrastBoard::Measure::wcag &&
                       Contrast::need(board_.target, board_.isLargeText()) >= 4.5;
    if (tells)
        paintFigure(painter, in, reading, pair.text, {});
    else
        paintFigure(painter, in, reading, toQColor(fromQColor(pair.ground).readableForeground()),
                    pair.text);
}

void MatrixCanvas::paintItem(QPainter& painter, const CanvasItem& item, ItemState state) {
    if (item.kind == cell)
        paintCell(painter, item);
    else
        paintHead(painter, item);
    if (state.focused || isChosen(*this, item))
        paintFocusRing(painter, theme(), item.rect.adjusted(-1, -1, 1, 1), metrics::kControlRadius);
    else if (state.hovered && item.kind == cell) {
        painter.setPen(QPen(theme().color(Token::edge), 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(item.rect.adjusted(-0.5, -0.5, 0.5, 0.5), metrics::kChipRadius,
                                metrics::kChipRadius);
    }
}

// Walking and opening

int MatrixCanvas::neighbour(int from, Qt::Key key) const {
    const auto n = static_cast<int>(count());
    if (n == 0) return -1;
    // The items are the heads of columns, those of rows, and the cells row by row.
    if (from < 0) return 2 * n;
    const auto& item = items()[static_cast<std::size_t>(from)];
    const auto at = static_cast<int>(item.index);
    // Place in the grid; -1 is the heads.
    int row = item.kind == columnHead ? -1 : item.kind == rowHead ? at : at / n;
    int column = item.kind == columnHead ? at : item.kind == rowHead ? -1 : at % n;
    switch (key) {
    case Qt::Key_Left:
        column = std::max(row < 0 ? 0 : -1, column - 1);
        break;
    case Qt::Key_Right:
        column = std::min(n - 1, column + 1);
        break;
    case Qt::Key_Up:
        row = std::max(column < 0 ? 0 : -1, row - 1);
        break;
    case Qt::Key_Down:
        row = std::min(n - 1, row + 1);
        break;
    case Qt::Key_Home:
        column = 0;
        break;
    case Qt::Key_End:
        column = n - 1;
        break;
    case Qt::Key_PageUp:
        row = 0;
        break;
    default:
        row = n - 1;
    }
    if (row < 0) return column;
    return column < 0 ? n + row : 2 * n + row * n + column;
}

void MatrixCanvas::focusMoved(int item) {
    if (item >= 0 && reveal) reveal(items()[static_cast<std::size_t>(item)].rect.toAlignedRect());
}

void MatrixCanvas::openPair(int item) {
    if (item < 0) return;
    const auto& one = items()[static_cast<std::size_t>(item)];
    if (one.kind != cell || one.index / count() == one.index % count()) return;
    const auto [text, ground] = pairOf(one.index);
    const Uuid textID = text->id, groundID = ground->id;
    const UpdateGroup group;
    board_.setRole(ContrastBoard::Role::text, textID);
    board_.setRole(ContrastBoard::Role::ground, groundID);
    board_.mode = ContrastBoard::Mode::pair;
}

void MatrixCanvas::mousePressEvent(QMouseEvent* event) {
    const auto item = itemAt(event->position());
    if (item >= 0) setFocused(item);
    pull_.press(*event, item >= 0 ? target() : std::nullopt);
}

void MatrixCanvas::mouseMoveEvent(QMouseEvent* event) {
    Canvas::mouseMoveEvent(event);
    if (const auto id = pull_.pulled(*event)) dragEntry(ui_, *this, *id);
}

void MatrixCanvas::mouseDoubleClickEvent(QMouseEvent* event) {
    openPair(itemAt(event->position()));
}

void MatrixCanvas::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        openPair(focused());
    else
        Canvas::keyPressEvent(event);
}

void MatrixCanvas::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const auto item = byKey ? focused() : itemAt(event->pos());
    if (item < 0) return;
    setFocused(item);
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto figure = figureText();
    if (target() && fillMenu) {
        fillMenu(*menu);
    } else if (!figure.isEmpty()) {
        menu->addAction(worded("Open as Pair"), this, [this, item] { openPair(item); });
        menu->addAction(worded("Copy Figure"), this, [this, figure] { copyFigure(ui_, figure); });
        menu->addAction(worded("Copy the Matrix as a Table"), this, [this] { copyMatrix(ui_); });
    }
    const auto middle = items()[static_cast<std::size_t>(item)].rect.center().toPoint();
    menu->popup(mapToGlobal(byKey ? middle : event->pos()));
}

} // namespace tintra
