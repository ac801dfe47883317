#include "ui/contrast/LadderCanvas.h"

#include "state/Models.h"
#include "state/UpdateGroup.h"
#include "ui/contrast/ChosenItem.h"
#include "ui/contrast/CopyFigure.h"
#include "ui/contrast/PairColours.h"
#include "ui/contrast/SpecimenFace.h"
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
#include <array>
#include <cmath>

namespace tintra {
namespace {

using Measure = ContrastBoard::Measure;

constexpr int kMargin = 20, kRung = 32, kRow = 40, kRungGap = 4, kChip = 24, kNameAt = 34;
constexpr int kBarAt = 172, kNarrowBarAt = 120, kFigures = 136, kBarPadding = 16;
constexpr int kFoot = 16;
constexpr int kLargestWords = 20;

/// What the levels, from the highest down, are enough for.
struct Levels {
    std::array<const char*, 3> normal, large;
};
constexpr Levels kWcag{
    {"AAA · normal text", "AA · normal text", "Large text and interface parts"},
    {"AAA · normal text", "AAA · large text", "AA · large text and interface parts"}};
constexpr Levels kApca{{"Columns of text", "Text that is read", "Large text and interface parts"},
                       {"Columns of text", "Text that is read", "Large text and interface parts"}};

const char* meaning(const ContrastBoard& board, std::size_t level) {
    const auto& levels = board.measure.value() == Measure::wcag ? kWcag : kApca;
    const bool isLarge = board.isLargeText() == Contrast::LargeText::yes;
    return (isLarge ? levels.large : levels.normal).at(level);
}

QString firstSentence(const std::string& specimen) {
    const auto text = fromUtf8(specimen).left(400).simplified();
    const auto end = text.indexOf(QStringLiteral(". "));
    return end < 0 ? text : text.left(end + 1);
}

} // namespace

LadderCanvas::LadderCanvas(Ui& ui, QWidget* parent)
    : Canvas(ui.theme, parent), ui_(ui), board_(ui.models.contrast()) {
    setAccessibleName(worded("Every colour against one"));
    const auto again = [this] { upkeep_.due(); };
    subscriptions_.add(board_.content(), again);
    subscriptions_.add(board_.measure, again);
    subscriptions_.add(board_.target, again);
    subscriptions_.add(board_.ladderFixesGround, again);
    subscriptions_.add(board_.specimen, again);
    const auto face = [this] { syncFace(); };
    subscriptions_.add(board_.size, face);
    subscriptions_.add(board_.weight, face);
    subscriptions_.add(board_.family, face);
    subscriptions_.add(board_.vision, [this] { update(); });
    subscriptions_.add(ui.theme.version(), face);
    syncFace();
}

void LadderCanvas::syncFace() {
    wordsFont_ = specimenFace(board_, theme()).font;
    wordsFont_.setPixelSize(std::min(wordsFont_.pixelSize(), kLargestWords));
    upkeep_.due();
}

void LadderCanvas::sync() {
    ladder_ = contrastLadder(board_);
    names_.clear();
    others_.clear();
    auto terms = contrastTerms(board_);
    const bool isWcag = terms.measure == Measure::wcag;
    terms.measure = isWcag ? Measure::apca : Measure::wcag;
    const auto* fixed = board_.ladderFixesGround ? board_.ground() : board_.text();
    for (const auto& [entry, reading] : ladder_.rows) {
        names_.push_back(oneLine(board_.name(entry), 80));
        const auto other = board_.ladderFixesGround
                               ? contrastReading(entry.color, fixed->color, terms)
                               : contrastReading(fixed->color, entry.color, terms);
        others_.push_back(figureToCopy(other, terms.measure));
    }
    words_ = firstSentence(board_.specimen);
    setMinimumHeight(heightNeeded());
    relayout();
}

const LadderCanvas::Row* LadderCanvas::focusedRow() const {
    if (focused() < 0) return nullptr;
    const auto& item = items()[static_cast<std::size_t>(focused())];
    return item.kind == row && item.index < rowCount() ? &ladder_.rows[item.index] : nullptr;
}

std::optional<Uuid> LadderCanvas::target() const {
    const auto* of = focusedRow();
    return of ? std::optional(of->entry.id) : std::nullopt;
}

QString LadderCanvas::figureText() const {
    const auto* of = focusedRow();
    return of ? figureToCopy(of->reading, board_.measure) : QString();
}

int LadderCanvas::heightNeeded() const {
    const auto rungs = static_cast<int>(ladder_.rungs.size()) + 1;
    return rungs * (theme().scaled(kRung) + kRungGap) +
           static_cast<int>(rowCount()) * theme().scaled(kRow) + kFoot;
}

std::vector<CanvasItem> LadderCanvas::layoutItems(QSizeF size) const {
    std::vector<CanvasItem> items;
    const auto wide = size.width() - 2 * kMargin;
    qreal y = 0;
    const auto addRung = [&](std::size_t level) {
        CanvasItem item;
        item.rect = {kMargin, y, wide, qreal(theme().scaled(kRung))};
        item.kind = rung;
        item.index = level;
        items.push_back(std::move(item));
        y += theme().scaled(kRung);
    };
    std::size_t at = 0;
    const auto addRows = [&](std::size_t end) {
        for (; at < end; ++at) {
            const auto& reading = ladder_.rows[at].reading;
            CanvasItem item;
            item.rect = {kMargin, y, wide, qreal(theme().scaled(kRow))};
            item.kind = row;
            item.index = at;
            item.role = QAccessible::ListItem;
            item.name = names_[at];
            item.value = spokenFigure(reading, board_.measure);
            item.description = worded(reading.reachesTarget ? "passes" : "fails");
            items.push_back(std::move(item));
            y += theme().scaled(kRow);
        }
        y += kRungGap;
    };
    for (std::size_t level = 0; level < ladder_.rungs.size(); ++level) {
        addRung(level);
        addRows(ladder_.rungs[level].above);
    }
    if (at == rowCount()) return items;
    addRung(ladder_.rungs.size());
    addRows(rowCount());
    return items;
}

QRectF LadderCanvas::barRect(const CanvasItem& item) const {
    const bool narrow = item.rect.width() < theme().scaled(560);
    const auto at = theme().scaled(narrow ? kNarrowBarAt : kBarAt);
    return item.rect.adjusted(at, 1, -theme().scaled(kFigures), -1);
}

// Painting

void LadderCanvas::paintRung(QPainter& painter, const CanvasItem& item) const {
    const auto& rungs = ladder_.rungs;
    const bool isLast = item.index == rungs.size();
    auto left = item.rect.left();
    const auto write = [&](const QString& words, TextStyle style, Token ink) {
        const auto font = theme().font(style);
        painter.setFont(font);
        painter.setPen(theme().color(ink));
        painter.drawText(QRectF(left, item.rect.top(), item.rect.width(), item.rect.height()),
                         Qt::AlignLeft | Qt::AlignVCenter, words);
        left += QFontMetricsF(font).horizontalAdvance(words) + 9;
    };
    const auto title = fromUtf8(isLast ? rungs.back().title : rungs[item.index].title);
    write(isLast ? worded("Below") : title, TextStyle::name, Token::ink);
    write(isLast ? title : worded(meaning(board_, item.index)), TextStyle::body, Token::ink3);
    painter.fillRect(QRectF(left, std::round(item.rect.center().y()), item.rect.right() - left, 1),
                     theme().color(Token::off));
}

void LadderCanvas::paintBar(QPainter& painter, const CanvasItem& item) const {
    const auto bar = barRect(item);
    const auto& color = ladder_.rows[item.index].entry.color;
    const bool fixesGround = board_.ladderFixesGround;
    const auto pair = seenPair(fixesGround ? color : board_.text()->color,
                               fixesGround ? board_.ground()->color : color, board_.vision);
    painter.setPen(Qt::NoPen);
    painter.setBrush(pair.ground);
    painter.drawRoundedRect(bar, metrics::kControlRadius, metrics::kControlRadius);
    ui_.painter.hairline(painter, bar, metrics::kControlRadius);
    const auto words = bar.adjusted(kBarPadding, 0, -kBarPadding, 0);
    painter.setPen(pair.text);
    lines_.paint(painter, wordsFont_, words, Qt::AlignLeft,
                 lines_.cut(wordsFont_, words_, words.width()));
}

void LadderCanvas::paintRow(QPainter& painter, const CanvasItem& item) const {
    const auto& [entry, reading] = ladder_.rows[item.index];
    const auto& in = item.rect;
    const qreal side = theme().scaled(kChip);
    ui_.painter.chip(painter, {in.left(), in.center().y() - side / 2, side, side}, entry.color,
                     board_.vision);
    const auto bar = barRect(item);
    const QRectF name(in.left() + theme().scaled(kNameAt), in.top(),
                      bar.left() - in.left() - theme().scaled(kNameAt) - 8, in.height());
    const auto font = theme().font(TextStyle::control);
    painter.setPen(theme().color(Token::ink));
    lines_.paint(painter, font, name, Qt::AlignLeft, lines_.cut(font, item.name, name.width()));
    paintBar(painter, item);
    painter.setFont(theme().font(TextStyle::title));
    painter.setPen(theme().color(Token::ink));
    drawFigures(painter, in.adjusted(0, 0, -theme().scaled(64), 0),
                Qt::AlignRight | Qt::AlignVCenter, fromUtf8(reading.figure));
    painter.setFont(theme().font(TextStyle::body));
    painter.setPen(theme().color(Token::ink2));
    drawFigures(painter, in, Qt::AlignRight | Qt::AlignVCenter, others_[item.index]);
}

void LadderCanvas::paintItem(QPainter& painter, const CanvasItem& item, ItemState state) {
    if (item.kind == rung) {
        paintRung(painter, item);
        return;
    }
    const auto around = item.rect.adjusted(-8, 0, 8, 0);
    if (state.hovered) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme().color(Token::hover));
        painter.drawRoundedRect(around, metrics::kControlRadius, metrics::kControlRadius);
    }
    paintRow(painter, item);
    if (state.focused || isChosen(*this, item))
        paintFocusRing(painter, theme(), around.adjusted(1, 1, -1, -1), metrics::kControlRadius);
}

// Walking and opening

void LadderCanvas::focusMoved(int item) {
    if (item >= 0 && reveal) reveal(items()[static_cast<std::size_t>(item)].rect.toAlignedRect());
}

void LadderCanvas::openPair(int item) {
    setFocused(item);
    const auto id = target();
    if (!id) return;
    const UpdateGroup group;
    board_.setRole(
        board_.ladderFixesGround ? ContrastBoard::Role::text : ContrastBoard::Role::ground, *id);
    board_.mode = ContrastBoard::Mode::pair;
}

void LadderCanvas::mousePressEvent(QMouseEvent* event) {
    const auto item = itemAt(event->position());
    const bool isRow = item >= 0 && items()[static_cast<std::size_t>(item)].kind == row;
    if (isRow) setFocused(item);
    pull_.press(*event, isRow ? target() : std::nullopt);
}

void LadderCanvas::mouseMoveEvent(QMouseEvent* event) {
    Canvas::mouseMoveEvent(event);
    if (const auto id = pull_.pulled(*event)) dragEntry(ui_, *this, *id);
}

void LadderCanvas::mouseDoubleClickEvent(QMouseEvent* event) {
    const auto item = itemAt(event->position());
    if (item >= 0 && items()[static_cast<std::size_t>(item)].kind == row) openPair(item);
}

void LadderCanvas::keyPressEvent(QKeyEvent* event) {
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && focusedRow())
        openPair(focused());
    else
        Canvas::keyPressEvent(event);
}

void LadderCanvas::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const auto item = byKey ? focused() : itemAt(event->pos());
    if (item < 0 || items()[static_cast<std::size_t>(item)].kind != row) return;
    setFocused(item);
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(worded("Open as Pair"), this, [this, item] { openPair(item); });
    const auto figure = figureText();
    menu->addAction(worded("Copy Figure"), this, [this, figure] { copyFigure(ui_, figure); });
    menu->addSeparator();
    if (fillMenu) fillMenu(*menu);
    const auto middle = items()[static_cast<std::size_t>(item)].rect.center().toPoint();
    menu->popup(mapToGlobal(byKey ? middle : event->pos()));
}

} // namespace tintra
