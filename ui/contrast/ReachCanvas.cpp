#include "ui/contrast/ReachCanvas.h"

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
constexpr ToastPlace kPlace{ToastWindow::contrast, {}};

QString useTitle() {
    return worded("Use");
}

QString distanceText(const Contrast::ReachProposal& of) {
    return worded("ΔL %1").arg(fromUtf8(fixed(of.distance * 100, 1)));
}

} // namespace

ReachCanvas::ReachCanvas(Ui& ui, QWidget* parent)
    : Canvas(ui.theme, parent), ui_(ui), board_(ui.models.contrast()) {
    setAccessibleName(worded("Ways to reach the target"));
    const auto again = [this] { sync(); };
    subscriptions_.add(board_.content(), again);
    subscriptions_.add(board_.target, again);
    subscriptions_.add(board_.size, again);
    subscriptions_.add(board_.weight, again);
    subscriptions_.add(board_.vision, again);
    subscriptions_.add(ui.models.preferences().format, again);
    subscriptions_.add(ui.models.preferences().formatOptions, again);
    subscriptions_.add(ui.theme.version(), again);
    sync();
}

void ReachCanvas::sync() {
    const auto* text = board_.text();
    const auto* ground = board_.ground();
    report_.reset();
    if (text && ground)
        report_ =
            Contrast::reachReport(text->color, ground->color, board_.target, board_.isLargeText());
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

void ReachCanvas::addRow(std::vector<CanvasItem>& items, Role role, const QRectF& in) const {
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
    auto button = item;
    items.push_back(std::move(item));
    const qreal high = theme().scaled(kButton);
    const auto wide =
        std::ceil(QFontMetricsF(theme().font(TextStyle::control)).horizontalAdvance(useTitle())) +
        24;
    button.rect = {in.right() - kInset - wide, in.center().y() - high / 2, wide, high};
    button.kind = use;
    button.role = QAccessible::Button;
    button.description = std::exchange(button.name, useTitle());
    items.push_back(std::move(button));
}

std::vector<CanvasItem> ReachCanvas::layoutItems(QSizeF size) const {
    std::vector<CanvasItem> items;
    if (!report_) return items;
    qreal y = 0;
    const qreal row = theme().scaled(kRow);
    for (const auto role : {Role::text, Role::ground}) {
        if (!of(role)) continue;
        addRow(items, role, {0, y, size.width(), row});
        y += row + kRowGap;
    }
    if (report_->message.empty()) return items;
    CanvasItem item;
    item.rect = {0, y, size.width(), std::max<qreal>(row, 0)};
    item.kind = message;
    item.role = QAccessible::StaticText;
    item.name = shown(report_->message);
    items.push_back(std::move(item));
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
    painter.setPen(QPen(theme().color(Token::edge), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(outline);
    painter.drawLine(sample.topRight(), sample.bottomRight());
    auto font = theme().font(TextStyle::figure);
    font.setPixelSize(theme().scaled(18));
    painter.setFont(font);
    painter.setPen(pair.text);
    painter.drawText(sample, Qt::AlignCenter, worded("Aa"));
}

void ReachCanvas::paintProposal(QPainter& painter, const CanvasItem& item) const {
    const auto role = static_cast<Role>(item.index);
    const auto& to = *of(role);
    paintSample(painter, role, item.rect);
    const QFontMetricsF names(theme().font(TextStyle::name));
    const auto left = item.rect.left() + theme().scaled(kSample) + kGap;
    auto right = items()[static_cast<std::size_t>(find(use, item.index))].rect.left() - kGap;
    // From the right what matters most; what the title leaves no room for is left out.
    const auto title = names.horizontalAdvance(item.name) + 1;
    const auto place = [&](const QString& words, TextStyle style, Token ink, bool always) {
        const auto font = theme().font(style);
        const auto wide = figuresWidth(font, words) + 1;
        if (words.isEmpty() || (!always && right - wide - kGap < left + title)) return;
        painter.setFont(font);
        painter.setPen(theme().color(ink));
        drawFigures(painter, QRectF(right - wide, item.rect.top(), wide, item.rect.height()),
                    Qt::AlignRight | Qt::AlignVCenter, words);
        right -= wide + kGap;
    };
    place(fromUtf8(Contrast::ratioText(to.ratio)), TextStyle::title, Token::ink, true);
    place(distanceText(to), TextStyle::caption, Token::ink3, false);
    place(to.eased ? worded("eased") : QString(), TextStyle::caption, Token::ink, false);
    place(QStringLiteral("→ ") + codeOf(role), TextStyle::code, Token::ink2, false);
    painter.setFont(theme().font(TextStyle::name));
    painter.setPen(theme().color(Token::ink));
    painter.drawText(QRectF(left, item.rect.top(), right - left, item.rect.height()),
                     Qt::AlignLeft | Qt::AlignVCenter,
                     names.elidedText(item.name, Qt::ElideRight, right - left + 1));
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
        painter.drawText(item.rect, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, item.name);
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
