#include "ui/shared/SwatchWords.h"

#include "ui/shared/Figures.h"
#include "ui/shared/Theme.h"

#include <algorithm>
#include <cmath>

namespace tintra {
namespace {

constexpr int kInset = 12;    ///< of words from the edges of a swatch, px
constexpr int kNameEnd = 8;   ///< between a name and the right edge
constexpr int kTight = 4;     ///< of a code that has no room else
constexpr int kMark = 24;     ///< the circle or square around a pin's number
constexpr int kRowIndex = 36; ///< what the number takes of a row
constexpr int kButton = 28, kButtonGap = 2;
constexpr int kFoot = 60; ///< the least height of the words' ground

bool isAtFoot(SwatchShape shape) {
    return shape == SwatchShape::column || shape == SwatchShape::tile ||
           shape == SwatchShape::bandCell;
}

} // namespace

SwatchWords::SwatchWords(const Theme& theme, TextLines& lines, const QRectF& in,
                         const SwatchLook& look)
    : theme_(theme), lines_(lines), in_(in), look_(look) {}

QFont SwatchWords::measured(TextStyle style) const {
    return theme_.font(style, Qt::black);
}

QString SwatchWords::share() const {
    if (look_.color.isOpaque()) return {};
    return QString::number(std::lround(std::clamp(look_.color.a, 0.0, 1.0) * 100)) +
           QLatin1Char('%');
}

int SwatchWords::nameLines() const {
    if (look_.shape == SwatchShape::bandCell) return 0;
    const auto width = in_.width() - kInset - kNameEnd;
    return static_cast<int>(lines_.twoLines(measured(TextStyle::name), look_.name, width).size());
}

QRectF SwatchWords::code() const {
    const qreal line = theme_.lineHeight(TextStyle::code);
    switch (look_.shape) {
    case SwatchShape::column:
    case SwatchShape::tile:
    case SwatchShape::bandCell:
        return {in_.left() + kInset, in_.bottom() - kInset - line, in_.width() - 2 * kInset, line};
    case SwatchShape::onSide: {
        const auto length = lines_.width(measured(TextStyle::codeOnSide), look_.code);
        return {in_.center().x() - line / 2, in_.bottom() - kInset - length, line, length};
    }
    case SwatchShape::row: {
        const auto width = lines_.width(measured(TextStyle::code), look_.code) + 2;
        return {in_.right() - kInset - width, in_.center().y() - line / 2, width, line};
    }
    case SwatchShape::cell:
        break;
    }
    return {};
}

QRectF SwatchWords::name() const {
    const auto codePlace = code();
    const qreal line = theme_.lineHeight(TextStyle::name);
    switch (look_.shape) {
    case SwatchShape::column:
    case SwatchShape::tile: {
        const auto height = line * nameLines();
        return {codePlace.left(), codePlace.top() - height, in_.width() - kInset - kNameEnd,
                height};
    }
    case SwatchShape::onSide: {
        const auto top = in_.top() + std::max<qreal>(kInset, look_.clearTop);
        return {in_.center().x() - line / 2, top, line,
                std::max<qreal>(0, codePlace.top() - kInset - top)};
    }
    case SwatchShape::row: {
        const auto left = in_.left() + (look_.index.isEmpty() ? kInset : kInset + kRowIndex);
        const auto buttons =
            static_cast<int>(look_.buttons.size()) * (theme_.scaled(kButton) + kButtonGap);
        const auto right = std::min(codePlace.left(), in_.right() - buttons) - kInset;
        return {left, in_.center().y() - line / 2, std::max<qreal>(0, right - left), line};
    }
    case SwatchShape::bandCell:
    case SwatchShape::cell:
        break;
    }
    return {};
}

QRectF SwatchWords::indexRect() const {
    const qreal line = theme_.lineHeight(TextStyle::caption);
    if (look_.shape == SwatchShape::row)
        return {in_.left() + kInset, in_.center().y() - kMark / 2.0, kMark, kMark};
    if (look_.pinned) return {in_.left() + kInset, in_.top() + kInset, kMark, kMark};
    const auto width = figuresWidth(measured(TextStyle::caption), look_.index);
    return {in_.left() + kInset, in_.top() + kInset, width, line};
}

QRectF SwatchWords::ground() const {
    const qreal least = std::min<qreal>(in_.height(), theme_.scaled(kFoot));
    switch (look_.shape) {
    case SwatchShape::cell:
        return {};
    case SwatchShape::row:
        return {in_.left(), in_.center().y() - least / 2, in_.width(), least};
    case SwatchShape::onSide: {
        const auto words = lines_.width(measured(TextStyle::name), look_.name);
        const auto place = name();
        const auto top = place.bottom() - std::min(words, place.height()) - kInset / 2.0;
        return QRectF(QPointF(in_.left(), std::max(in_.top(), top)), in_.bottomRight());
    }
    default: {
        const auto top = std::min(in_.bottom() - least, name().top() - kInset / 3.0);
        return QRectF(QPointF(in_.left(), std::max(in_.top(), top)), in_.bottomRight());
    }
    }
}

void SwatchWords::paintIndex(QPainter& painter, const QColor& ink, const QColor& ground) const {
    if (look_.index.isEmpty() || look_.shape == SwatchShape::onSide) return;
    const auto place = indexRect();
    painter.setFont(theme_.font(TextStyle::caption, ink));
    if (!look_.color.isOpaque()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(ground);
        painter.drawRoundedRect(place.adjusted(-5, -2, 5, 2), metrics::kChipRadius,
                                metrics::kChipRadius);
    }
    painter.setPen(ink);
    if (look_.pinned) {
        painter.setPen(QPen(ink, 1.5));
        painter.setBrush(Qt::NoBrush);
        if (look_.ownPin)
            painter.drawRoundedRect(place.adjusted(1, 1, -1, -1), 4, 4);
        else
            painter.drawEllipse(place.adjusted(1, 1, -1, -1));
        drawFigures(painter, place, Qt::AlignCenter, look_.index);
    } else {
        drawFigures(painter, place, Qt::AlignLeft | Qt::AlignVCenter, look_.index);
    }
}

void SwatchWords::paintOnSide(QPainter& painter) const {
    painter.save();
    painter.translate(in_.center().x(), in_.bottom() - kInset);
    painter.rotate(-90);
    const auto codeFont = measured(TextStyle::codeOnSide);
    const auto length = lines_.width(codeFont, look_.code);
    const qreal line = theme_.lineHeight(TextStyle::name);
    if (length <= in_.height() - 2 * kInset)
        lines_.paint(painter, codeFont, QRectF(0, -line / 2, length + 1, line), Qt::AlignLeft,
                     look_.code);
    const auto nameRoom = name().height();
    if (nameRoom > line && !look_.hidesName) {
        const auto text = lines_.cut(measured(TextStyle::name), look_.name, nameRoom);
        lines_.paint(painter, theme_.font(TextStyle::name, painter.pen().color()),
                     QRectF(length + kInset, -line / 2, nameRoom, line), Qt::AlignLeft, text);
    }
    painter.restore();
}

void SwatchWords::paintName(QPainter& painter) const {
    const auto place = name();
    if (look_.hidesName || place.width() < 8) return;
    const auto font = measured(TextStyle::name);
    const auto inked = theme_.font(TextStyle::name, painter.pen().color());
    if (look_.shape == SwatchShape::row) {
        lines_.paint(painter, inked, place, Qt::AlignLeft,
                     lines_.cut(font, look_.name, place.width()));
        return;
    }
    const qreal line = theme_.lineHeight(TextStyle::name);
    auto y = place.top();
    for (const auto& text : lines_.twoLines(font, look_.name, place.width())) {
        lines_.paint(painter, inked, QRectF(place.left(), y, place.width(), line), Qt::AlignLeft,
                     text);
        y += line;
    }
}

void SwatchWords::paintCode(QPainter& painter, const QColor& ink, const QColor& ground) const {
    auto place = code();
    auto font = measured(TextStyle::code);
    if (isAtFoot(look_.shape) && lines_.width(font, look_.code) > place.width()) {
        // The eight digits of a translucent colour find room in the narrowest column.
        font = measured(TextStyle::codeOnSide);
        place.setRight(in_.right() - kTight);
    }
    const auto alpha = isAtFoot(look_.shape) ? share() : QString();
    const auto alphaWidth = alpha.isEmpty() ? 0 : lines_.width(font, alpha) + 8;
    const auto room = place.width();
    const bool bothFit = lines_.width(font, look_.code) + alphaWidth <= room;
    if (!alpha.isEmpty() && bothFit) {
        lines_.paint(painter, font, place, Qt::AlignRight, alpha);
        place.setWidth(room - alphaWidth);
    }
    const auto text = lines_.cut(font, look_.code, place.width());
    if (look_.codeFlashes) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(ink);
        painter.drawRoundedRect(
            QRectF(place.topLeft(), QSizeF(lines_.width(font, text), place.height()))
                .adjusted(-4, 0, 4, 0),
            metrics::kChipRadius, metrics::kChipRadius);
        painter.setPen(ground);
    }
    lines_.paint(painter, font, place, Qt::AlignLeft, text);
    painter.setPen(ink);
}

void SwatchWords::paint(QPainter& painter, const QColor& ink, const QColor& ground) const {
    if (look_.shape == SwatchShape::cell) return;
    painter.setPen(ink);
    if (look_.shape == SwatchShape::onSide) {
        paintOnSide(painter);
        return;
    }
    // A swatch too low for its words shows none rather than parts of them.
    const auto needed = theme_.lineHeight(TextStyle::code) + 4;
    if (in_.height() < needed) return;
    const bool roomForName =
        look_.shape == SwatchShape::row || name().top() >= in_.top() + kInset / 2.0;
    paintCode(painter, ink, ground);
    if (roomForName) paintName(painter);
    const bool roomForIndex = look_.shape == SwatchShape::row ||
                              indexRect().bottom() + 4 <= name().top() || look_.name.isEmpty();
    painter.setPen(ink);
    if (roomForIndex) paintIndex(painter, ink, ground);
}

} // namespace tintra
