// The swatches of a whole palette, and notes.

#include "ui/library/LibraryPainter.h"
#include "ui/library/LibraryWords.h"
#include "ui/library/SwatchStrip.h"
#include "ui/shared/Controls.h"
#include "ui/shared/Lines.h"
#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QFontMetricsF>
#include <algorithm>
#include <array>
#include <cmath>

namespace tintra {
namespace {

constexpr int kStripRadius = 6, kMatchGap = 2, kIcon = 16;
constexpr int kNoteWidth = 340, kNoteGap = 6, kNoteButtonGap = 16, kButton = 28, kButtonPad = 13,
              kIconGap = 6;

/// The corners that a cell of a group has where the group has its own.
std::array<int, 4> radiiOf(const QRectF& cell, const QRectF& in, std::array<int, 4> radii) {
    const bool left = cell.left() <= in.left(), right = cell.right() >= in.right();
    const bool top = cell.top() <= in.top(), bottom = cell.bottom() >= in.bottom();
    if (!(top && left)) radii[0] = 0;
    if (!(top && right)) radii[1] = 0;
    if (!(bottom && right)) radii[2] = 0;
    if (!(bottom && left)) radii[3] = 0;
    // A narrow cell has no room for them.
    for (auto& radius : radii)
        radius = std::min(radius, static_cast<int>(cell.width()));
    return radii;
}

constexpr std::array<int, 4> kAllRound{kStripRadius, kStripRadius, kStripRadius, kStripRadius};

} // namespace

void LibraryPainter::instead(QPainter& painter, const QRectF& in,
                             const LibraryPalette& palette) const {
    const auto& theme = ui_.theme;
    const auto inside = in.adjusted(0.5, 0.5, -0.5, -0.5);
    if (palette.state != PaletteEntry::State::unreadable) {
        painter.setPen(QPen(theme.color(Token::line), 1));
        painter.setBrush(theme.color(Token::raised));
        painter.drawRoundedRect(inside, kStripRadius, kStripRadius);
        return;
    }
    painter.setPen(QPen(theme.color(Token::edge), 1, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(inside, kStripRadius, kStripRadius);
    const auto middle = in.center().y();
    painter.drawPixmap(QPointF(in.left() + 12, middle - kIcon / 2.0),
                       theme.icon("warning", kIcon, theme.color(Token::ink),
                                  painter.device()->devicePixelRatioF()));
    write(painter, TextStyle::small, Token::ink, in.adjusted(12 + kIcon + 8, 0, -8, 0),
          unreadableText(palette));
}

void LibraryPainter::strip(QPainter& painter, const QRectF& in, std::size_t find) const {
    const auto& palette = model_.listing().paletteAt(find);
    if (!palette.palette || palette.palette->swatches.empty()) {
        instead(painter, in, palette);
        return;
    }
    const auto& swatches = palette.palette->swatches;
    if (matchOf(model_, find).swatch) {
        matchedStrip(painter, in, find, *model_.listing().finds[find].hit.index);
        return;
    }
    for (const auto& cell : stripCells(in, swatches.size()))
        ui_.painter.fill(painter, cell.rect, swatches[cell.swatch].color, Vision::typical,
                         radiiOf(cell.rect, in, kAllRound));
    ui_.painter.hairline(painter, in, kStripRadius);
}

void LibraryPainter::matchedStrip(QPainter& painter, const QRectF& in, std::size_t find,
                                  std::size_t matched) const {
    const auto& swatches = model_.listing().paletteAt(find).palette->swatches;
    const auto quarter = std::round(in.height() / 4);
    const auto low = in.adjusted(0, quarter, 0, -quarter);
    QRectF place;
    for (const auto& cell : stripCells(in, swatches.size(), matched)) {
        if (cell.swatch == matched) place = cell.rect;
        const QRectF half(cell.rect.left(), low.top(), cell.rect.width(), low.height());
        ui_.painter.fill(painter, half, swatches[cell.swatch].color, Vision::typical,
                         radiiOf(half, low, kAllRound));
    }
    ui_.painter.hairline(painter, low, kStripRadius);
    // The swatch stands in its ring, apart from its neighbours.
    constexpr auto kAround = metrics::kFocusWidth + kMatchGap;
    painter.fillRect(QRectF(place.left(), low.top(), place.width(), low.height()),
                     ui_.theme.color(Token::ground));
    const auto inside = place.adjusted(kAround, 0, -kAround, 0);
    ui_.painter.fill(painter, inside, swatches[matched].color, Vision::typical, kAllRound);
    ui_.painter.hairline(painter, inside, kStripRadius);
    matchedRing(painter, inside);
}

void LibraryPainter::matchedRing(QPainter& painter, const QRectF& around) const {
    paintFocusRing(painter, ui_.theme,
                   around.adjusted(-kMatchGap, -kMatchGap, kMatchGap, kMatchGap),
                   kStripRadius + kMatchGap);
}

void LibraryPainter::mosaic(QPainter& painter, const QRectF& in, std::size_t find) const {
    const auto& palette = model_.listing().paletteAt(find);
    if (!palette.palette || palette.palette->swatches.empty()) {
        instead(painter, in.adjusted(8, 8, -8, -8), palette);
        return;
    }
    const auto& swatches = palette.palette->swatches;
    const auto none = swatches.size();
    const auto matched =
        matchOf(model_, find).swatch ? model_.listing().finds[find].hit.index.value_or(none) : none;
    constexpr auto kRound = metrics::kGroupRadius;
    QRectF place;
    for (const auto& cell : mosaicCells(in, swatches.size())) {
        if (cell.swatch == matched) place = cell.rect;
        ui_.painter.fill(painter, cell.rect, swatches[cell.swatch].color, Vision::typical,
                         radiiOf(cell.rect, in, {kRound, kRound, 0, 0}));
    }
    mosaicHairline(painter, in);
    if (place.isEmpty()) return;
    const auto ink = ui_.painter.foreground(swatches[matched].color, Vision::typical);
    painter.setPen(QPen(ink, metrics::kFocusWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(place.adjusted(2, 2, -2, -2));
}

/// Round at the top, where the tile is.
void LibraryPainter::mosaicHairline(QPainter& painter, const QRectF& in) const {
    constexpr auto kRound = metrics::kGroupRadius;
    painter.save();
    painter.setClipRect(in.adjusted(0, 0, 0, -1), Qt::IntersectClip);
    ui_.painter.hairline(painter, in.adjusted(0, 0, 0, 2 * kRound), kRound);
    painter.restore();
    painter.save();
    painter.setClipRect(QRectF(in.left(), in.bottom() - 1, in.width(), 1), Qt::IntersectClip);
    ui_.painter.hairline(painter, in, 0);
    painter.restore();
}

QPixmap LibraryPainter::card(std::size_t find, qreal ratio) const {
    constexpr QSize kCard(168, 112);
    constexpr int kAround = 4;
    QPixmap pixmap((kCard + QSize(2 * kAround, 2 * kAround)) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF place(QPointF(kAround, kAround), QSizeF(kCard));
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawRoundedRect(place.adjusted(-4, -4, 4, 4), 12, 12);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(place.adjusted(-2, -2, 2, 2), 10, 10);
    tile(painter, place, find, {.isDragged = true});
    return pixmap;
}

// Notes

void LibraryPainter::note(QPainter& painter, const QRectF& in, const LibraryNote& note,
                          qreal left) const {
    const auto& theme = ui_.theme;
    const auto font = theme.font(TextStyle::body);
    if (note.title.isEmpty()) {
        const auto button = noteButton(in, note, left);
        const auto end = note.action.isEmpty() ? in.right() - left : button.left() - 12;
        write(painter, TextStyle::body, Token::ink2,
              QRectF(left + 20, in.top(), end - left - 20, in.height()), note.text);
        return;
    }
    const auto lines = evenLinesOf(
        note.text, font, std::min<qreal>(in.width() - 2 * left, theme.scaled(kNoteWidth)));
    const qreal line = theme.lineHeight(TextStyle::body);
    auto y = noteButton(in, note, left).top() - kNoteButtonGap -
             line * static_cast<qreal>(lines.size()) - kNoteGap;
    const qreal title = theme.lineHeight(TextStyle::title);
    write(painter, TextStyle::title, Token::ink,
          QRectF(in.left() + left, y - title, in.width() - 2 * left, title), note.title,
          Qt::AlignHCenter);
    y += kNoteGap;
    for (const auto& text : lines) {
        write(painter, TextStyle::body, Token::ink2, QRectF(in.left(), y, in.width(), line), text,
              Qt::AlignHCenter);
        y += line;
    }
}

QRectF LibraryPainter::noteButton(const QRectF& in, const LibraryNote& note, qreal left) const {
    const auto& theme = ui_.theme;
    const QFontMetricsF metrics(theme.font(TextStyle::control));
    const auto icon = note.icon().empty() ? 0 : kIcon + kIconGap;
    const auto wide = metrics.horizontalAdvance(note.action) + 2 * kButtonPad + icon;
    const qreal high = theme.scaled(kButton);
    if (note.title.isEmpty())
        return {in.right() - left - wide, in.center().y() - high / 2, wide, high};
    const auto lines =
        evenLinesOf(note.text, theme.font(TextStyle::body),
                    std::min<qreal>(in.width() - 2 * left, theme.scaled(kNoteWidth)));
    const auto words = theme.lineHeight(TextStyle::title) + 2 * kNoteGap +
                       theme.lineHeight(TextStyle::body) * static_cast<int>(lines.size());
    const auto whole = words + (note.action.isEmpty() ? 0 : kNoteButtonGap + high);
    const auto top = in.top() + std::max<qreal>(0, std::round((in.height() - whole) / 2)) + words;
    return {std::round(in.center().x() - wide / 2), top + kNoteButtonGap, wide, high};
}

} // namespace tintra
