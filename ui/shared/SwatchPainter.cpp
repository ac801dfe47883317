#include "ui/shared/SwatchPainter.h"

#include "state/Preferences.h"
#include "ui/shared/Controls.h"
#include "ui/shared/Figures.h"
#include "ui/shared/SwatchWords.h"
#include "ui/shared/Theme.h"

#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace tintra {
namespace {

constexpr int kCheck = 12; ///< a square of the checkerboard, px
constexpr int kButton = 28, kButtonGap = 2, kInset = 8;
constexpr int kWordsOfColumn = 80; ///< a name of two lines and a code, with what is around them

QPainterPath rounded(const QRectF& in, const std::array<int, 4>& radii) {
    QPainterPath path;
    const auto [topLeft, topRight, bottomRight, bottomLeft] = radii;
    path.moveTo(in.left() + topLeft, in.top());
    path.lineTo(in.right() - topRight, in.top());
    path.arcTo(in.right() - 2 * topRight, in.top(), 2 * topRight, 2 * topRight, 90, -90);
    path.lineTo(in.right(), in.bottom() - bottomRight);
    path.arcTo(in.right() - 2 * bottomRight, in.bottom() - 2 * bottomRight, 2 * bottomRight,
               2 * bottomRight, 0, -90);
    path.lineTo(in.left() + bottomLeft, in.bottom());
    path.arcTo(in.left(), in.bottom() - 2 * bottomLeft, 2 * bottomLeft, 2 * bottomLeft, 270, -90);
    path.lineTo(in.left(), in.top() + topLeft);
    path.arcTo(in.left(), in.top(), 2 * topLeft, 2 * topLeft, 180, -90);
    path.closeSubpath();
    return path;
}

/// The four arcs of a round rectangle alone.
QPainterPath corners(const QRectF& in, qreal radius) {
    QPainterPath path;
    const QSizeF circle(2 * radius, 2 * radius);
    const auto add = [&](QPointF topLeft, int from) {
        const QRectF of(topLeft, circle);
        path.arcMoveTo(of, from);
        path.arcTo(of, from, 90);
    };
    add({in.right() - circle.width(), in.top()}, 0);
    add(in.topLeft(), 90);
    add({in.left(), in.bottom() - circle.height()}, 180);
    add({in.right() - circle.width(), in.bottom() - circle.height()}, 270);
    return path;
}

bool isSquare(const std::array<int, 4>& radii) {
    return std::all_of(radii.begin(), radii.end(), [](int radius) { return radius == 0; });
}

/// Brought to whole pixels of the screen, so that neighbours meet without a seam at every ratio;
/// as it is where the painter is turned.
QRectF onPixels(const QPainter& painter, const QRectF& in) {
    const auto toDevice = painter.deviceTransform();
    if (toDevice.type() > QTransform::TxScale) return in;
    const auto there = toDevice.mapRect(in);
    const QPointF topLeft(std::round(there.left()), std::round(there.top()));
    const QPointF bottomRight(std::round(there.right()), std::round(there.bottom()));
    return toDevice.inverted().mapRect(QRectF(topLeft, bottomRight));
}

/// The shape of a ring within a swatch.
QPainterPath ringPath(const QRectF& in, const std::array<int, 4>& radii, qreal inset) {
    auto inner = radii;
    for (auto& radius : inner)
        radius = std::max(0, radius - static_cast<int>(std::lround(inset)));
    return rounded(in.adjusted(inset, inset, -inset, -inset), inner);
}

/// Its edges lie between device pixels.
bool isOnPixels(const QPainter& painter, const QRectF& in) {
    const auto& transform = painter.deviceTransform();
    if (transform.type() > QTransform::TxScale) return false;
    const auto mapped = transform.mapRect(in);
    return mapped == QRectF(mapped.toRect());
}

/// Fills what ends on whole pixels of the device, where rounding alone would make an edge of half
/// tones.
void fillPixels(QPainter& painter, const QRectF& in, const QBrush& brush) {
    const bool smooth = painter.testRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(in, brush);
    painter.setRenderHint(QPainter::Antialiasing, smooth);
}

/// Fills the shape without seams between neighbours: square ones by whole pixels, and of round ones
/// all but the corners.
void fillShape(QPainter& painter, const QRectF& in, const std::array<int, 4>& radii,
               const QBrush& brush) {
    if (isSquare(radii)) {
        painter.fillRect(in, brush);
        return;
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    const auto [topLeft, topRight, bottomRight, bottomLeft] = radii;
    const auto above = std::max(topLeft, topRight), below = std::max(bottomLeft, bottomRight);
    const auto middle = in.adjusted(0, above, 0, -below);
    if (middle.height() < 1 || !isOnPixels(painter, middle)) {
        painter.drawPath(rounded(in, radii));
        return;
    }
    // Antialiasing what lies far from a corner takes longer than all else in a frame.
    fillPixels(painter, middle, brush);
    if (above > 0)
        painter.drawPath(rounded(QRectF(in.topLeft(), middle.topRight()), {topLeft, topRight}));
    if (below > 0)
        painter.drawPath(rounded(QRectF(middle.bottomLeft(), in.bottomRight()),
                                 {0, 0, bottomRight, bottomLeft}));
}

QBrush checkerboard(const Theme& theme) {
    QPixmap tile(2 * kCheck, 2 * kCheck);
    tile.fill(theme.color(Token::checkLight));
    QPainter painter(&tile);
    const auto dark = theme.color(Token::checkDark);
    painter.fillRect(0, 0, kCheck, kCheck, dark);
    painter.fillRect(kCheck, kCheck, kCheck, kCheck, dark);
    return QBrush(tile);
}

} // namespace

std::array<int, 4> radiiWithin(const QRectF& swatch, const QRectF& group, int radius) {
    const bool left = swatch.left() <= group.left(), right = swatch.right() >= group.right();
    const bool top = swatch.top() <= group.top(), bottom = swatch.bottom() >= group.bottom();
    return {left && top ? radius : 0, right && top ? radius : 0, right && bottom ? radius : 0,
            left && bottom ? radius : 0};
}

QColor toQColor(const WashColor& color) {
    const auto unit = [](double component) {
        return static_cast<float>(std::isfinite(component) ? std::clamp(component, 0.0, 1.0) : 0);
    };
    return QColor::fromRgbF(unit(color.r), unit(color.g), unit(color.b), unit(color.a));
}

WashColor fromQColor(const QColor& color) {
    return {color.redF(), color.greenF(), color.blueF(), color.alphaF()};
}

SwatchPainter::SwatchPainter(const Theme& theme, const Preferences& preferences)
    : theme_(theme), preferences_(preferences) {}

WashColor SwatchPainter::flat(const WashColor& color, Vision vision) const {
    return simulate(vision, color.overCheckerboard());
}

QColor SwatchPainter::foreground(const WashColor& color, Vision vision) const {
    return toQColor(flat(color, vision).readableForeground());
}

void SwatchPainter::fill(QPainter& painter, const QRectF& place, const WashColor& color,
                         Vision vision, std::array<int, 4> radii) const {
    const auto in = onPixels(painter, place);
    if (color.isOpaque()) {
        fillShape(painter, in, radii, toQColor(simulate(vision, color)));
        return;
    }
    const auto seen = toQColor(simulate(vision, color));
    const auto over = [&](const QBrush& backdrop) {
        fillShape(painter, in, radii, backdrop);
        fillShape(painter, in, radii, seen);
    };
    switch (preferences_.swatchBackdrop.value()) {
    case SwatchBackdrop::checkerboard:
        painter.setBrushOrigin(in.topLeft());
        over(checkerboard(theme_));
        break;
    case SwatchBackdrop::ground:
        over(theme_.color(Token::ground));
        break;
    case SwatchBackdrop::white:
        over(Qt::white);
        break;
    case SwatchBackdrop::black:
        over(Qt::black);
        break;
    case SwatchBackdrop::custom:
        over(toQColor(simulate(vision, preferences_.backdropColour.value())));
        break;
    case SwatchBackdrop::strips: {
        painter.save();
        fillShape(painter, in, radii, Qt::white);
        painter.setClipRect(in.adjusted(0, 0, -in.width() / 2, 0), Qt::IntersectClip);
        fillShape(painter, in, radii, Qt::black);
        painter.restore();
        fillShape(painter, in, radii, seen);
        break;
    }
    }
}

void SwatchPainter::hairline(QPainter& painter, const QRectF& in, int radius) const {
    const QColor color(127, 127, 127, 89);
    painter.setBrush(Qt::NoBrush);
    const auto high = in.height() - 2 * radius, wide = in.width() - 2 * radius;
    if (high < 1 || wide < 1 || !isOnPixels(painter, in.adjusted(radius, radius, 0, 0))) {
        painter.setPen(QPen(color, 1));
        painter.drawRoundedRect(in.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
        return;
    }
    painter.fillRect(QRectF(in.left() + radius, in.top(), wide, 1), color);
    painter.fillRect(QRectF(in.left() + radius, in.bottom() - 1, wide, 1), color);
    painter.fillRect(QRectF(in.left(), in.top() + radius, 1, high), color);
    painter.fillRect(QRectF(in.right() - 1, in.top() + radius, 1, high), color);
    if (radius == 0) return;
    QPen pen(color, 1);
    pen.setCapStyle(Qt::FlatCap);
    painter.setPen(pen);
    painter.drawPath(corners(in.adjusted(0.5, 0.5, -0.5, -0.5), radius));
}

void SwatchPainter::chip(QPainter& painter, const QRectF& in, const WashColor& color,
                         Vision vision) const {
    constexpr auto kRadius = metrics::kChipRadius;
    fill(painter, in, color, vision, {kRadius, kRadius, kRadius, kRadius});
    hairline(painter, in, kRadius);
}

void SwatchPainter::paint(QPainter& painter, const QRectF& place, const SwatchLook& look) const {
    const auto in = onPixels(painter, place);
    if (look.leftBehind) {
        painter.setPen(QPen(theme_.color(Token::edge), 1.5, Qt::DashLine));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(in.adjusted(1, 1, -1, -1), metrics::kGroupRadius,
                                metrics::kGroupRadius);
        return;
    }
    fill(painter, in, look.color, look.vision, look.radii);
    const auto under = flat(look.color, look.vision);
    const auto ink = toQColor(under.readableForeground());
    const SwatchWords words(theme_, lines_, in, look);
    if (!look.color.isOpaque()) {
        painter.save();
        painter.setClipPath(rounded(in, look.radii), Qt::IntersectClip);
        painter.fillRect(words.ground(), toQColor(under));
        painter.restore();
    }
    words.paint(painter, ink, toQColor(under));

    const auto places = buttonRects(in, look.shape, look.buttons.size());
    for (std::size_t i = 0; i < places.size(); ++i) {
        const auto& button = look.buttons[i];
        auto mark = ink;
        if (button.hovered || button.pressed) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(ink);
            painter.drawRoundedRect(places[i], metrics::kControlRadius, metrics::kControlRadius);
            mark = toQColor(under);
        }
        const auto icon = theme_.icon(button.icon, 20, mark, painter.device()->devicePixelRatioF());
        painter.drawPixmap(places[i].center() - QPointF(10, 10), icon);
    }

    paintRings(painter, in, look, ink);
}

void SwatchPainter::paintRings(QPainter& painter, const QRectF& in, const SwatchLook& look,
                               const QColor& ink) const {
    painter.setBrush(Qt::NoBrush);
    // A swatch that stands by itself has room for a ring around it.
    if (look.focused && look.shape == SwatchShape::tile)
        paintFocusRing(painter, theme_, in.adjusted(-2, -2, 2, 2), metrics::kGroupRadius + 2);
    if (look.focused && look.shape != SwatchShape::tile) {
        const auto other = ink == QColor(Qt::black) ? QColor(Qt::white) : QColor(Qt::black);
        painter.setPen(QPen(ink, 3));
        painter.drawPath(ringPath(in, look.radii, 1.5));
        painter.setPen(QPen(other, 2));
        painter.drawPath(ringPath(in, look.radii, 4));
    } else if (look.selected) {
        painter.setPen(QPen(ink, 2));
        painter.drawPath(ringPath(in, look.radii, 1));
    }
}

QRectF SwatchPainter::nameRect(const QRectF& in, const SwatchLook& look) const {
    return SwatchWords(theme_, lines_, in, look).name();
}

QRectF SwatchPainter::codeRect(const QRectF& in, const SwatchLook& look) const {
    return SwatchWords(theme_, lines_, in, look).code();
}

std::vector<QRectF> SwatchPainter::buttonRects(const QRectF& in, SwatchShape shape,
                                               std::size_t count) const {
    std::vector<QRectF> rects;
    const auto side = qreal(theme_.scaled(kButton));
    const auto step = side + kButtonGap;
    const bool isRow = shape == SwatchShape::row;
    const auto room = in.width() - 2 * kInset + kButtonGap;
    auto perLine = std::max<std::size_t>(1, static_cast<std::size_t>(room / step));
    // One below the other in a high column; side by side where all have room, or none else.
    const auto stack = static_cast<qreal>(count + 1) * step + theme_.scaled(kWordsOfColumn);
    if (perLine < count && shape != SwatchShape::tile && stack <= in.height()) perLine = 1;
    for (std::size_t i = 0; i < count; ++i) {
        if (isRow) {
            const auto fromRight = static_cast<qreal>(count - i) * step;
            rects.emplace_back(in.right() - kInset - fromRight, in.center().y() - side / 2, side,
                               side);
            continue;
        }
        const auto line = static_cast<qreal>(i / perLine), place = static_cast<qreal>(i % perLine);
        // The index keeps the first line of a column to itself.
        const auto top = in.top() + kInset + (shape == SwatchShape::column ? step : 0);
        rects.emplace_back(in.left() + kInset + place * step, top + line * step, side, side);
    }
    return rects;
}

QPixmap SwatchPainter::card(const SwatchLook& look, QSize size, qreal ratio) const {
    constexpr int kMargin = 20; // the tilt and the rings
    constexpr qreal kTilt = -2;
    const QSize whole = size + QSize(2 * kMargin, 2 * kMargin);
    QPixmap pixmap(whole * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.translate(whole.width() / 2.0, whole.height() / 2.0);
    painter.rotate(kTilt);
    const QRectF card(-size.width() / 2.0, -size.height() / 2.0, size.width(), size.height());
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawRoundedRect(card.adjusted(-4, -4, 4, 4), 12, 12);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(card.adjusted(-2, -2, 2, 2), 10, 10);
    auto plain = look;
    plain.shape = SwatchShape::tile;
    plain.index.clear();
    plain.buttons.clear();
    plain.selected = plain.focused = false;
    plain.radii.fill(metrics::kGroupRadius);
    paint(painter, card, plain);
    return pixmap;
}

} // namespace tintra
