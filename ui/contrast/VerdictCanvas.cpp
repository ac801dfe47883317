#include "ui/contrast/VerdictCanvas.h"

#include "platform/Number.h"
#include "state/Models.h"
#include "ui/contrast/CopyFigure.h"
#include "ui/shared/Controls.h"
#include "ui/shared/Figures.h"
#include "ui/shared/Lines.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QContextMenuEvent>
#include <QFontMetricsF>
#include <QPainter>
#include <cmath>

namespace tintra {
namespace {

constexpr int kFigure = 48, kLevel = 24, kMark = 16, kNameAt = 26, kGap = 8, kVerdictLines = 3;

/// The title of a target without its figure.
QString wordsOf(const ContrastBoard& board, Contrast::Target target) {
    const auto title = shown(board.title(target));
    return title.left(title.lastIndexOf(u','));
}

} // namespace

VerdictCanvas::VerdictCanvas(Ui& ui, QWidget* parent)
    : Canvas(ui.theme, parent), ui_(ui), board_(ui.models.contrast()) {
    setAccessibleName(worded("Reading of the pair"));
    const auto again = [this] { upkeep_.due(); };
    subscriptions_.add(board_.content(), again);
    subscriptions_.add(board_.measure, again);
    subscriptions_.add(board_.target, again);
    subscriptions_.add(board_.size, again);
    subscriptions_.add(board_.weight, again);
    subscriptions_.add(ui.theme.version(), again);
    setMinimumHeight(heightNeeded());
    upkeep_.due();
}

void VerdictCanvas::sync() {
    const auto* text = board_.text();
    const auto* ground = board_.ground();
    names_.clear();
    if (text && ground) {
        auto terms = contrastTerms(board_);
        reading_ = contrastReading(text->color, ground->color, terms);
        const bool isWcag = terms.measure == ContrastBoard::Measure::wcag;
        terms.measure = isWcag ? ContrastBoard::Measure::apca : ContrastBoard::Measure::wcag;
        const auto other = fromUtf8(contrastReading(text->color, ground->color, terms).figure);
        other_ = isWcag ? worded("APCA Lc %1").arg(other) : worded("WCAG %1:1").arg(other);
        const auto ratio = Contrast::wcagRatio(text->color, ground->color);
        for (std::size_t i = 0; i < levels_.size(); ++i) {
            const auto target = Contrast::allTargets()[i];
            const auto need = Contrast::need(target, terms.large);
            levels_[i] = {wordsOf(board_, target), fromUtf8(fixed(need, 1)),
                          Contrast::reaches(ratio, need)};
        }
        verdict_ = shown(board_.verdict(ratio));
        names_ = worded("%1 on %2").arg(oneLine(board_.name(*text)), oneLine(board_.name(*ground)));
    }
    setMinimumHeight(heightNeeded());
    relayout();
}

QString VerdictCanvas::figureText() const {
    if (names_.isEmpty()) return {};
    return figureToCopy(reading_, board_.measure);
}

int VerdictCanvas::heightNeeded() const {
    return theme().scaled(kFigure) + kGap +
           static_cast<int>(levels_.size()) * theme().scaled(kLevel) + kGap +
           kVerdictLines * theme().lineHeight(TextStyle::caption);
}

std::vector<CanvasItem> VerdictCanvas::layoutItems(QSizeF size) const {
    if (names_.isEmpty()) return {};
    std::vector<CanvasItem> items;
    qreal y = 0;
    const auto add = [&](Kind kind, std::size_t index, const QRectF& in, const QString& name,
                         const QString& value) {
        CanvasItem item;
        item.rect = in;
        item.kind = kind;
        item.index = index;
        item.role = QAccessible::StaticText;
        item.name = name;
        item.value = value;
        items.push_back(std::move(item));
    };
    const qreal high = theme().scaled(kFigure);
    const auto otherWide = figuresWidth(theme().font(TextStyle::body), other_) + 2;
    add(figure, 0, {0, y, size.width() - otherWide - kGap, high}, names_,
        spokenFigure(reading_, board_.measure));
    add(otherMeasure, 0, {size.width() - otherWide, y, otherWide, high}, other_, {});
    y += high + kGap;
    for (std::size_t i = 0; i < levels_.size(); ++i) {
        const auto& [words, need, passes] = levels_[i];
        const qreal row = theme().scaled(kLevel);
        add(level, i, {0, y, size.width(), row}, words + QStringLiteral(", ") + need,
            worded(passes ? "passes" : "fails"));
        y += row;
    }
    y += kGap;
    add(verdict, 0, {0, y, size.width(), std::max<qreal>(0, size.height() - y)}, verdict_, {});
    return items;
}

void VerdictCanvas::paintGround(QPainter& painter, const QRect& dirty) {
    painter.fillRect(dirty, theme().color(Token::panel));
}

qreal VerdictCanvas::baseLine(const QRectF& in) const {
    const QFontMetricsF big(theme().font(TextStyle::bigFigure));
    return in.top() + (in.height() + big.capHeight()) / 2;
}

void VerdictCanvas::paintFigure(QPainter& painter, const QRectF& in) const {
    const bool isWcag = board_.measure.value() == ContrastBoard::Measure::wcag;
    const auto big = theme().font(TextStyle::bigFigure);
    auto small = theme().font(TextStyle::figure);
    small.setWeight(QFont::Normal);
    const auto base = baseLine(in);
    auto left = in.left();
    const auto aside = [&](const QString& words) {
        painter.setFont(small);
        painter.setPen(theme().color(Token::ink2));
        painter.drawText(QPointF(left, base), words);
        left += QFontMetricsF(small).horizontalAdvance(words) + kGap;
    };
    if (!isWcag) aside(worded("Lc"));
    const auto digits = fromUtf8(reading_.figure);
    painter.setFont(big);
    painter.setPen(theme().color(Token::ink));
    const auto wide = figuresWidth(big, digits);
    drawFigures(painter, QRectF(left, in.top(), wide + 2, in.height()),
                Qt::AlignLeft | Qt::AlignVCenter, digits);
    left += wide + kGap;
    if (isWcag) aside(worded(": 1"));
}

void VerdictCanvas::paintLevel(QPainter& painter, const CanvasItem& item) const {
    const auto& [words, need, passes] = levels_[item.index];
    const auto ink = theme().color(Token::ink);
    const QRectF mark(item.rect.left(), item.rect.center().y() - kMark / 2.0, kMark, kMark);
    painter.setPen(QPen(passes ? ink : theme().color(Token::ink2), 1));
    painter.setBrush(passes ? QBrush(ink) : QBrush(Qt::NoBrush));
    painter.drawEllipse(mark.adjusted(0.5, 0.5, -0.5, -0.5));
    painter.setPen(QPen(theme().color(passes ? Token::panel : Token::ink), 1.5, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    const auto middle = mark.center();
    if (passes) {
        painter.drawPolyline(QPolygonF{middle + QPointF(-3.4, 0.2), middle + QPointF(-1, 2.6),
                                       middle + QPointF(3.4, -2.4)});
    } else {
        painter.drawLine(middle + QPointF(-2.3, -2.3), middle + QPointF(2.3, 2.3));
        painter.drawLine(middle + QPointF(-2.3, 2.3), middle + QPointF(2.3, -2.3));
    }
    const auto write = [&](const QRectF& in, Qt::Alignment side, TextStyle style, Token token,
                           const QString& text) {
        const auto font = theme().font(style);
        painter.setFont(font);
        painter.setPen(theme().color(token));
        painter.drawText(in, side | Qt::AlignVCenter,
                         QFontMetricsF(font).elidedText(text, Qt::ElideRight, in.width() + 1));
    };
    const QFontMetricsF control(theme().font(TextStyle::control));
    const auto verdictWide = control.horizontalAdvance(worded("passes"));
    const auto needWide = QFontMetricsF(theme().font(TextStyle::body)).horizontalAdvance(need);
    auto place = item.rect;
    write(place, Qt::AlignRight, TextStyle::control, Token::ink,
          worded(passes ? "passes" : "fails"));
    place.setRight(place.right() - verdictWide - 18);
    write(place, Qt::AlignRight, TextStyle::body, Token::ink3, need);
    place.setRight(place.right() - needWide - kGap);
    place.setLeft(place.left() + kNameAt);
    write(place, Qt::AlignLeft, TextStyle::body, Token::ink, words);
}

void VerdictCanvas::paintVerdict(QPainter& painter, const QRectF& in) const {
    const auto font = theme().font(TextStyle::caption);
    painter.setFont(font);
    painter.setPen(theme().color(Token::ink3));
    QRectF line(in.left(), in.top(), in.width(), theme().lineHeight(TextStyle::caption));
    for (const auto& words : linesOf(verdict_, font, in.width())) {
        painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, words);
        line.translate(0, line.height());
    }
}

void VerdictCanvas::paintItem(QPainter& painter, const CanvasItem& item, ItemState state) {
    auto in = item.rect;
    switch (item.kind) {
    case figure:
        paintFigure(painter, item.rect);
        break;
    case otherMeasure:
        painter.setFont(theme().font(TextStyle::body));
        painter.setPen(theme().color(Token::ink2));
        in.setBottom(baseLine(in) + QFontMetricsF(painter.font()).descent());
        drawFigures(painter, in, Qt::AlignRight | Qt::AlignBottom, other_);
        break;
    case level:
        paintLevel(painter, item);
        break;
    default:
        paintVerdict(painter, item.rect);
    }
    if (state.focused) paintFocusRing(painter, theme(), item.rect.adjusted(1, 1, -1, -1), 4);
}

void VerdictCanvas::mousePressEvent(QMouseEvent* event) {
    if (const auto item = itemAt(event->position()); item >= 0) setFocused(item);
}

void VerdictCanvas::contextMenuEvent(QContextMenuEvent* event) {
    if (!names_.isEmpty()) popUpFigureMenu(ui_, *this, event->globalPos(), figureText());
}

} // namespace tintra
