// How the Bench looks.

#include "state/Models.h"
#include "ui/bench/BenchCanvas.h"
#include "ui/shared/Beginning.h"
#include "ui/shared/Controls.h"
#include "ui/shared/Figures.h"
#include "ui/shared/PlacedField.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QFontMetricsF>
#include <array>
#include <cmath>

namespace tintra {
namespace {

constexpr qreal kInset = 12; ///< of words from the edges of a column
constexpr qreal kBar = 4, kBarGap = 4;
constexpr qreal kWellRing = 4, kActiveRing = 3;
constexpr qreal kLeastForWords = 72;    ///< diameter of a well
constexpr qreal kLeastForButtons = 130; ///< width of a column
constexpr std::array<std::string_view, 3> kButtons{"copy", "contrast", "remove"};

} // namespace

SwatchLook BenchCanvas::look(const CanvasItem& item) const {
    const auto& of = columnAt(item.index);
    SwatchLook look;
    look.color = bench_.currentColor(of);
    look.vision = bench_.vision;
    look.shape = stand_.shape;
    look.name = oneLine(bench_.name(of));
    look.code = item.value;
    look.selected = item.selected;
    look.codeFlashes = flashing_ && flashing_->id == of.id;
    look.hidesName = field_ && !field_->isHidden() && item.selected;
    look.clearTop = stand_.clearTop;
    look.leftBehind = bench_.draggingBenchColumn.value() == of.id;
    // There is room for the digits only; what is copied has the mark.
    if (look.shape == SwatchShape::onSide && look.code.startsWith(u'#')) look.code.remove(0, 1);
    return look;
}

bool BenchCanvas::hasButtons(const CanvasItem& item) const {
    if (item.kind != column || item.rect.width() < kLeastForButtons) return false;
    const auto rects = ui_.painter.buttonRects(item.rect, stand_.shape, kButtons.size());
    return rects.back().bottom() < ui_.painter.nameRect(item.rect, look(item)).top();
}

void BenchCanvas::paintColumn(QPainter& painter, const CanvasItem& item, ItemState state) const {
    auto drawn = look(item);
    drawn.focused = state.focused;
    drawn.radii = radiiWithin(item.rect, stand_.group, metrics::kGroupRadius);
    if ((state.hovered || state.focused) && hasButtons(item))
        for (std::size_t i = 0; i < kButtons.size(); ++i)
            drawn.buttons.push_back(
                {.icon = kButtons[i],
                 .hovered = state.hovered && hoveredButton_ == static_cast<int>(i),
                 .pressed = state.hovered && pressedButton_ == static_cast<int>(i)});
    ui_.painter.paint(painter, item.rect, drawn);
    if (drawn.leftBehind) return;
    paintBadge(painter, item, ui_.painter.nameRect(item.rect, drawn).top());
    if (!drawn.selected) return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme().color(Token::ink));
    painter.drawRoundedRect(
        QRectF(item.rect.left(), item.rect.bottom() + kBarGap, item.rect.width(), kBar), kBar / 2,
        kBar / 2);
}

/// None where there is no room for it above the name.
void BenchCanvas::paintBadge(QPainter& painter, const CanvasItem& item, qreal name) const {
    constexpr int kIcon = 16;
    constexpr qreal kGap = 6;
    const auto& of = columnAt(item.index);
    const auto ink = ui_.painter.foreground(bench_.currentColor(of), bench_.vision);
    const bool isAttached = of.source.kind == BenchColumn::Kind::paletteSwatch;
    const bool isNarrow = stand_.shape == SwatchShape::onSide;
    auto place = item.rect.adjusted(kInset, kInset, -kInset, 0);
    place.setHeight(theme().lineHeight(TextStyle::caption));
    if (place.bottom() > name) return;
    if (isAttached) {
        const auto left = isNarrow ? item.rect.center().x() - kIcon / 2.0 : place.left();
        painter.drawPixmap(QPointF(left, place.center().y() - kIcon / 2.0),
                           theme().icon("link", kIcon, ink, devicePixelRatioF()));
        place.setLeft(place.left() + kIcon + kGap);
    }
    if (isNarrow) return;
    auto font = theme().font(TextStyle::caption);
    font.setWeight(QFont::DemiBold);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0.5);
    painter.setFont(font);
    painter.setPen(ink);
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                     QFontMetricsF(font).elidedText(oneLine(bench_.badgeText(of), 60),
                                                    Qt::ElideRight, place.width()));
}

void BenchCanvas::paintFigure(QPainter& painter, const CanvasItem& item) const {
    const bool isNarrow = stand_.shape == SwatchShape::onSide;
    painter.setPen(theme().isHighContrast() ? QPen(theme().color(Token::edge), 1)
                                            : QPen(Qt::NoPen));
    painter.setBrush(theme().color(Token::panel));
    const auto round = item.rect.height() / 2;
    painter.drawRoundedRect(item.rect, round, round);
    auto font = theme().font(isNarrow ? TextStyle::caption : TextStyle::small);
    font.setWeight(QFont::DemiBold);
    painter.setFont(font);
    painter.setPen(theme().color(Token::ink));
    drawFigures(painter, item.rect, Qt::AlignCenter, item.value);
}

void BenchCanvas::paintMix(QPainter& painter, const CanvasItem& item, ItemState state) const {
    const bool isPressed = state.hovered && pressedItem_ >= 0;
    painter.setPen(theme().isHighContrast() ? QPen(theme().color(Token::edge), 1)
                                            : QPen(Qt::NoPen));
    painter.setBrush(theme().color(isPressed       ? Token::press
                                   : state.hovered ? Token::hover
                                                   : Token::panel));
    painter.drawEllipse(item.rect);
    painter.drawPixmap(item.rect.center() - QPointF(8, 8),
                       theme().icon("plus", 16, theme().color(Token::ink), devicePixelRatioF()));
    if (state.focused)
        paintFocusRing(painter, theme(), item.rect.adjusted(-2, -2, 2, 2),
                       static_cast<int>(item.rect.height() / 2) + 2);
}

void BenchCanvas::paintWell(QPainter& painter, const CanvasItem& item, ItemState state) const {
    const auto& of = bench_.benchWells()[item.index];
    const auto color = bench_.wellColor(of);
    if (!color) return;
    const auto& ink = theme().color(Token::ink);
    painter.setPen(Qt::NoPen);
    if (item.selected) {
        painter.setBrush(ink);
        painter.drawEllipse(
            item.rect.adjusted(-kActiveRing, -kActiveRing, kActiveRing, kActiveRing));
    }
    painter.setBrush(theme().color(Token::panel));
    painter.drawEllipse(item.rect);
    painter.setBrush(toQColor(ui_.painter.flat(*color, bench_.vision)));
    painter.drawEllipse(item.rect.adjusted(kWellRing, kWellRing, -kWellRing, -kWellRing));
    if (state.focused)
        paintFocusRing(painter, theme(), item.rect.adjusted(-4, -4, 4, 4),
                       static_cast<int>(item.rect.height() / 2) + 4);
    if (item.rect.width() < kLeastForWords) return;
    const auto words = item.value.section(QStringLiteral(", "), 1);
    const auto line = theme().lineHeight(TextStyle::code);
    const auto share = static_cast<int>(std::lround(of.ratio * 100));
    auto place =
        QRectF(item.rect.left() + 10, item.rect.center().y() - line, item.rect.width() - 20, line);
    const auto codeFont = theme().font(TextStyle::code);
    painter.setPen(ui_.painter.foreground(*color, bench_.vision));
    painter.setFont(codeFont);
    painter.drawText(place, Qt::AlignCenter,
                     QFontMetricsF(codeFont).elidedText(words, Qt::ElideRight, place.width()));
    place.translate(0, line);
    auto font = theme().font(TextStyle::caption);
    font.setWeight(QFont::Medium);
    painter.setFont(font);
    drawFigures(painter, place, Qt::AlignCenter,
                QStringLiteral("%1 : %2").arg(100 - share).arg(share));
}

void BenchCanvas::paintItem(QPainter& painter, const CanvasItem& item, ItemState state) {
    switch (item.kind) {
    case column:
        paintColumn(painter, item, state);
        break;
    case link: {
        // A line of ink, set off from whatever colour it crosses.
        const auto inner = item.rect.adjusted(8, 3, -8, -3);
        painter.fillRect(inner.adjusted(-1, -1, 1, 1), theme().color(Token::panel));
        painter.fillRect(inner, theme().color(Token::ink));
        break;
    }
    case figure:
        paintFigure(painter, item);
        break;
    case mix:
        paintMix(painter, item, state);
        break;
    case well:
        paintWell(painter, item, state);
        break;
    case beginning:
        paintBeginning(painter, theme(), item, "paste",
                       {state.hovered, pressedItem_ >= 0, state.focused});
        break;
    default:
        paintWords(painter, item);
    }
}

/// Of the empty Bench.
void BenchCanvas::paintWords(QPainter& painter, const CanvasItem& item) const {
    const bool isHead = item.kind == headline;
    const auto style = isHead ? TextStyle::title : TextStyle::body;
    const auto font = theme().font(style);
    const auto line = theme().lineHeight(style);
    painter.setFont(font);
    painter.setPen(theme().color(isHead ? Token::ink : Token::ink2));
    auto place = QRectF(item.rect.topLeft(), QSizeF(item.rect.width(), line));
    for (const auto& words : TextLines().twoLines(font, item.name, place.width())) {
        painter.drawText(place, Qt::AlignCenter, words);
        place.translate(0, line);
    }
}

void BenchCanvas::paintOverlay(QPainter& painter) {
    if (!stand_.group.isEmpty()) ui_.painter.hairline(painter, stand_.group, metrics::kGroupRadius);
    if (!insertion_) return;
    if (stand_.columns.empty()) {
        constexpr qreal kRing = 3;
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(theme().color(Token::ink), kRing));
        painter.drawRect(QRectF(rect()).adjusted(kRing / 2, kRing / 2, -kRing / 2, -kRing / 2));
        return;
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme().color(Token::ink));
    painter.drawRoundedRect(insertionBar(), 2, 2);
}

} // namespace tintra
