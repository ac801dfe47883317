#include "ui/shared/NoticeBar.h"

#include "platform/MainLoop.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QAccessible>
#include <QEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

namespace tintra {
namespace {

constexpr std::size_t kKept = 20;
constexpr int kHeight = 36, kSide = 14, kGap = 18;
/// How long a notice stays while a screen reader may be reading it out, seconds.
constexpr double kRead = 6;

} // namespace

void NoticeHistory::add(QString text) {
    texts_.push_back(std::move(text));
    if (texts_.size() > kKept) texts_.pop_front();
}

NoticeBar::NoticeBar(Theme& theme, MainLoop& loop, QWidget* over)
    : QWidget(over), theme_(theme), loop_(loop) {
    setFocusPolicy(Qt::ClickFocus);
    hide();
    over->installEventFilter(this);
}

NoticeBar::~NoticeBar() = default;

void NoticeBar::present(const QString& text, double seconds, std::optional<ToastAction> action) {
    text_ = text;
    seconds_ = QAccessible::isActive() ? std::max(seconds, kRead) : seconds;
    action_ = std::move(action);
    setAccessibleName(text_);
    setCursor(action_ ? Qt::PointingHandCursor : Qt::ArrowCursor);
    place();
    show();
    raise();
    update();
    startClock();
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void NoticeBar::dismiss() {
    clock_.reset();
    action_.reset();
    hide();
}

void NoticeBar::setTop(int top) {
    top_ = top;
    if (isVisible()) place();
}

void NoticeBar::startClock() {
    clock_ = loop_.after(seconds_, [this] { dismiss(); });
}

void NoticeBar::place() {
    const QFontMetrics words(theme_.font(TextStyle::control));
    auto width = words.horizontalAdvance(text_) + 2 * kSide;
    if (action_) width += kGap + words.horizontalAdvance(fromUtf8(action_->title));
    width = std::min(width, parentWidget()->width() - 2 * kSide);
    const auto height = theme_.scaled(kHeight);
    setGeometry((parentWidget()->width() - width) / 2, top_, width, height);
}

void NoticeBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme_.color(Token::sel));
    painter.drawRoundedRect(rect(), metrics::kGroupRadius, metrics::kGroupRadius);
    auto font = theme_.font(TextStyle::control);
    painter.setFont(font);
    painter.setPen(theme_.color(Token::onsel));
    auto room = QRectF(rect()).adjusted(kSide, 0, -kSide, 0);
    if (action_) {
        const auto title = shown(action_->title);
        font.setUnderline(true);
        painter.setFont(font);
        painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter, title);
        room.setRight(room.right() - QFontMetricsF(font).horizontalAdvance(title) - kGap);
        font.setUnderline(false);
        painter.setFont(font);
    }
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter,
                     QFontMetricsF(font).elidedText(text_, Qt::ElideMiddle, room.width()));
    if (hasFocus()) {
        painter.setPen(QPen(theme_.color(Token::onsel), 1.5));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(3, 3, -3, -3), 5, 5);
    }
}

void NoticeBar::enterEvent(QEnterEvent*) {
    clock_.reset();
}

void NoticeBar::leaveEvent(QEvent*) {
    if (isVisible() && !hasFocus()) startClock();
}

void NoticeBar::mousePressEvent(QMouseEvent*) {
    // The action may show a notice of its own, which replaces this one.
    const auto action = std::exchange(action_, std::nullopt);
    dismiss();
    if (action && action->perform) action->perform();
}

void NoticeBar::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        mousePressEvent(nullptr);
        break;
    case Qt::Key_Escape:
        dismiss();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void NoticeBar::focusInEvent(QFocusEvent*) {
    clock_.reset();
    update();
}

void NoticeBar::focusOutEvent(QFocusEvent*) {
    if (isVisible()) startClock();
    update();
}

bool NoticeBar::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parentWidget() && event->type() == QEvent::Resize && isVisible()) place();
    return QWidget::eventFilter(watched, event);
}

} // namespace tintra
