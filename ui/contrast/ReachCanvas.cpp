#include "ui/contrast/ReachCanvas.h"

#include "colour/ContrastLightness.h"
#include "platform/Number.h"
#include "state/ContrastSending.h"
#include "state/Models.h"
#include "ui/contrast/PairColours.h"
#include "ui/shared/Controls.h"
#include "ui/shared/Figures.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <utility>

namespace tintra {
namespace {

constexpr int kRow = 44, kRowGap = 8, kSample = 64, kGap = 12, kInset = 8, kButton = 28;
constexpr int kArrow = 18;
constexpr ToastPlace kPlace{ToastWindow::contrast, {}};

QString useTitle() {
    return worded("Use");
}

QString arrow() {
    return QStringLiteral("→");
}

QString easedText() {
    return worded("eased");
}

QString distanceText(const Contrast::ReachProposal& of) {
    return worded("ΔL %1").arg(fromUtf8(fixed(of.distance * 100, 1)));
}

/// What rows are written with.
struct Pen {
    QPainter& painter;
    const Theme& theme;

    void write(const QRectF& in, Qt::Alignment side, TextStyle style, Token ink,
               const QString& words) const {
        painter.setFont(theme.font(style));
        painter.setPen(theme.color(ink));
        drawFigures(painter, in, side | Qt::AlignVCenter, words);
    }
};

} // namespace

ReachCanvas::ReachCanvas(Ui& ui, QWidget* parent)
    : Canvas(ui.theme, parent), ui_(ui), board_(ui.models.contrast()) {
    setAccessibleName(worded("Ways to reach the target"));
    const auto again = [this] { upkeep_.due(); };
    subscriptions_.add(board_.content(), again);
    subscriptions_.add(board_.target, again);
    subscriptions_.add(board_.size, again);
    subscriptions_.add(board_.weight, again);
    subscriptions_.add(board_.vision, again);
    subscriptions_.add(ui.models.preferences().format, again);
    subscriptions_.add(ui.models.preferences().formatOptions, again);
    subscriptions_.add(ui.theme.version(), again);
    setMinimumHeight(heightNeeded());
    upkeep_.due();
}

void ReachCanvas::sync() {
    const auto* text = board_.text();
    const auto* ground = board_.ground();
    report_.reset();
    if (text && ground)
        report_ =
            Contrast::reachReport(text->color, ground->color, board_.target, board_.isLargeText());
    columns_ = columns();
    setMinimumHeight(heightNeeded());
    relayout();
}

int ReachCanvas::heightNeeded() const {
    return 2 * theme().scaled(kRow) + kRowGap;
}

const Contrast::ReachProposal* ReachCanvas::of(Role role) const {
    if (!report_) return nullptr;
    const auto& found = role == Role::text ? report_->text : report_->ground;
    return found ? &*found : nullptr;
}

QString ReachCanvas::codeOf(Role role) const {
    const auto& preferences = ui_.models.preferences();
    const auto& entry = role == Role::text ? *board_.text() : *board_.ground();
    return fromUtf8(preferences.format.value().string(of(role)->colour, board_.name(entry),
                                                      preferences.formatOptions.value()));
}

ReachCanvas::Columns ReachCanvas::columns() const {
    Columns all;
    const auto widen = [this](qreal& column, TextStyle style, const QString& words) {
        column = std::max(column, figuresWidth(theme().font(style), words) + 1);
    };
    for (const auto role : {Role::text, Role::ground}) {
        const auto* to = of(role);
        if (!to) continue;
        widen(all.title, TextStyle::name, shown(to->title));
        widen(all.code, TextStyle::code, codeOf(role));
        if (to->eased) widen(all.distance, TextStyle::caption, easedText());
        widen(all.distance, TextStyle::caption, distanceText(*to));
        widen(all.ratio, TextStyle::title, fromUtf8(Contrast::ratioText(to->ratio)));
    }
    if (all.code > 0) all.code += theme().scaled(kArrow);
    return all;
}

CanvasItem ReachCanvas::rowItem(Role role, const QRectF& in) const {
    const auto& to = *of(role);
    CanvasItem item;
    item.rect = in;
    item.kind = proposal;
    item.index = static_cast<std::size_t>(role);
    item.role = QAccessible::ListItem;
    item.name = shown(to.title);
    item.value = codeOf(role) + QStringLiteral(", ") +
                 worded("%1 to 1").arg(fromUtf8(Contrast::ratioText(to.ratio)));
    item.description = distanceText(to);
    if (to.eased)
        item.description += QStringLiteral(", ") + worded("eased: chroma gave way to stay in sRGB");
    return item;
}

CanvasItem ReachCanvas::useItem(const CanvasItem& row) const {
    auto button = row;
    const qreal high = theme().scaled(kButton);
    const auto wide =
        std::ceil(QFontMetricsF(theme().font(TextStyle::control)).horizontalAdvance(useTitle())) +
        24;
    button.rect = {row.rect.right() - kInset - wide, row.rect.center().y() - high / 2, wide, high};
    button.kind = use;
    button.role = QAccessible::Button;
    button.description = std::exchange(button.name, useTitle());
    return button;
}

std::vector<CanvasItem> ReachCanvas::layoutItems(QSizeF size) const {
    std::vector<CanvasItem> items;
    if (!report_ || !board_.text() || !board_.ground()) return items;
    const qreal row = theme().scaled(kRow);
    QRectF in(0, 0, size.width(), row);
    const auto say = [&](std::string_view words) {
        CanvasItem item;
        item.rect = in;
        item.kind = message;
        item.role = QAccessible::StaticText;
        item.name = shown(words);
        items.push_back(std::move(item));
    };
    const auto ratio = Contrast::wcagRatio(board_.text()->color, board_.ground()->color);
    if (Contrast::reaches(ratio, report_->need)) {
        say(report_->message);
        return items;
    }
    for (const auto role : {Role::text, Role::ground}) {
        if (of(role)) {
            items.push_back(rowItem(role, in));
            items.push_back(useItem(items.back()));
        } else {
            say(Contrast::noReachText(role));
        }
        in.translate(0, row + kRowGap);
    }
    return items;
}

// Painting

void ReachCanvas::paintGround(QPainter& painter, const QRect& dirty) {
    painter.fillRect(dirty, theme().color(Token::panel));
}

void ReachCanvas::paintSample(QPainter& painter, Role role, const QRectF& in) const {
    const auto& to = *of(role);
    const bool movesText = role == Role::text;
    const auto pair = seenPair(movesText ? to.colour : board_.text()->color,
                               movesText ? board_.ground()->color : to.colour, board_.vision);
    const auto frame = in.adjusted(0.5, 0.5, -0.5, -0.5);
    const QRectF sample(frame.left(), frame.top(), theme().scaled(kSample), frame.height());
    QPainterPath outline;
    outline.addRoundedRect(frame, metrics::kControlRadius, metrics::kControlRadius);
    painter.save();
    painter.setClipRect(sample);
    painter.fillPath(outline, pair.ground);
    painter.restore();
    painter.setPen(QPen(theme().color(Token::line), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(outline);
    painter.drawLine(sample.topRight(), sample.bottomRight());
    auto font = theme().font(TextStyle::figure, pair.text);
    font.setPixelSize(theme().scaled(18));
    painter.setFont(font);
    painter.setPen(pair.text);
    painter.drawText(sample, Qt::AlignCenter, worded("Aa"));
}

void ReachCanvas::paintInLine(QPainter& painter, Role role, const QRectF& in) const {
    const Pen pen{painter, theme()};
    const auto& to = *of(role);
    pen.write(in, Qt::AlignLeft, TextStyle::name, Token::ink, shown(to.title));
    const qreal line = theme().lineHeight(TextStyle::caption);
    QRectF distance(in.left(), in.center().y() - line / 2, in.width(), line);
    if (to.eased) distance.translate(0, -line / 2);
    pen.write(distance, Qt::AlignRight, TextStyle::caption, Token::ink3, distanceText(to));
    distance.translate(0, line);
    if (to.eased) pen.write(distance, Qt::AlignRight, TextStyle::caption, Token::ink, easedText());
    auto code = in;
    code.setLeft(in.right() - columns_.distance - kGap - columns_.code);
    pen.write(code, Qt::AlignLeft, TextStyle::body, Token::ink2, arrow());
    code.setLeft(code.left() + theme().scaled(kArrow));
    pen.write(code, Qt::AlignLeft, TextStyle::code, Token::ink, codeOf(role));
}

void ReachCanvas::paintStacked(QPainter& painter, Role role, const QRectF& in) const {
    const Pen pen{painter, theme()};
    const auto& to = *of(role);
    const qreal line = theme().lineHeight(TextStyle::caption);
    const QRectF title(in.left(), in.center().y() - line - 2, in.width(), line + 2);
    const auto font = theme().font(TextStyle::name);
    pen.write(title, Qt::AlignLeft, TextStyle::name, Token::ink,
              QFontMetricsF(font).elidedText(shown(to.title), Qt::ElideRight, in.width()));
    QRectF rest(in.left(), in.center().y() + 1, in.width(), line);
    const auto next = [&](TextStyle style, Token ink, const QString& words) {
        const auto wide = figuresWidth(theme().font(style), words) + 1;
        if (wide > rest.width()) return;
        pen.write(rest, Qt::AlignLeft, style, ink, words);
        rest.setLeft(rest.left() + wide + kGap / 2.0);
    };
    next(TextStyle::codeOnSide, Token::ink, codeOf(role));
    if (to.eased) next(TextStyle::caption, Token::ink, easedText());
    next(TextStyle::caption, Token::ink3, distanceText(to));
}

void ReachCanvas::paintProposal(QPainter& painter, const CanvasItem& item) const {
    const auto role = static_cast<Role>(item.index);
    paintSample(painter, role, item.rect);
    auto in = item.rect;
    in.setLeft(in.left() + theme().scaled(kSample) + kGap);
    in.setRight(items()[static_cast<std::size_t>(find(use, item.index))].rect.left() - kGap);
    Pen{painter, theme()}.write(in, Qt::AlignRight, TextStyle::title, Token::ink,
                                fromUtf8(Contrast::ratioText(of(role)->ratio)));
    in.setRight(in.right() - columns_.ratio - kGap);
    const auto needed = columns_.title + columns_.code + columns_.distance + 2 * kGap;
    if (needed <= in.width())
        paintInLine(painter, role, in);
    else
        paintStacked(painter, role, in);
}

void ReachCanvas::paintUse(QPainter& painter, const CanvasItem& item, ItemState state) const {
    auto fill = Token::panel;
    if (state.hovered) fill = pressed_ >= 0 ? Token::press : Token::hover;
    painter.setPen(QPen(theme().color(Token::edge), 1));
    painter.setBrush(theme().color(fill));
    painter.drawRoundedRect(item.rect.adjusted(0.5, 0.5, -0.5, -0.5), metrics::kControlRadius,
                            metrics::kControlRadius);
    painter.setFont(theme().font(TextStyle::control));
    painter.setPen(theme().color(Token::ink));
    painter.drawText(item.rect, Qt::AlignCenter, item.name);
}

void ReachCanvas::paintItem(QPainter& painter, const CanvasItem& item, ItemState state) {
    switch (item.kind) {
    case proposal:
        paintProposal(painter, item);
        break;
    case use:
        paintUse(painter, item, state);
        break;
    default:
        painter.setFont(theme().font(TextStyle::body));
        painter.setPen(theme().color(Token::ink2));
        painter.drawText(item.rect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap, item.name);
    }
    if (state.focused)
        paintFocusRing(painter, theme(), item.rect.adjusted(1, 1, -1, -1), metrics::kControlRadius);
}

// Using one

void ReachCanvas::take(std::size_t index) {
    const auto role = static_cast<Role>(index);
    const auto* to = of(role);
    const auto* entry = role == Role::text ? board_.text() : board_.ground();
    if (to && entry)
        ContrastSending(board_, ui_.services.toasts, kPlace)
            .replace(Uuid(entry->id), WashColor(to->colour));
}

void ReachCanvas::mousePressEvent(QMouseEvent* event) {
    const auto item = itemAt(event->position());
    if (item >= 0) setFocused(item);
    const bool onUse = item >= 0 && items()[static_cast<std::size_t>(item)].kind == use;
    pressed_ = onUse && event->button() == Qt::LeftButton ? item : -1;
    repaintItem(pressed_);
}

void ReachCanvas::mouseReleaseEvent(QMouseEvent* event) {
    const auto pressed = std::exchange(pressed_, -1);
    repaintItem(pressed);
    if (pressed >= 0 && pressed == itemAt(event->position()))
        take(items()[static_cast<std::size_t>(pressed)].index);
}

void ReachCanvas::keyPressEvent(QKeyEvent* event) {
    const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                        event->key() == Qt::Key_Space;
    if (enters && focused() >= 0 && items()[static_cast<std::size_t>(focused())].kind != message)
        take(items()[static_cast<std::size_t>(focused())].index);
    else
        Canvas::keyPressEvent(event);
}

} // namespace tintra
