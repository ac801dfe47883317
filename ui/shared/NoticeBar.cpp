#include "ui/shared/NoticeBar.h"

#include "platform/MainLoop.h"
#include "ui/shared/AccessibilityEvents.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

namespace tintra {
namespace {

constexpr std::size_t kKept = 20;
constexpr int kHeight = 36, kSide = 14, kGap = 14;
/// How long a notice stays while a screen reader may be reading it out, seconds.
constexpr double kRead = 6;
/// No window has room for more characters.
constexpr qsizetype kMeasured = 1000;

/// A notice as a screen reader meets it.
class NoticeInterface final : public QAccessibleWidget {
public:
    explicit NoticeInterface(NoticeBar* notice)
        : QAccessibleWidget(notice, QAccessible::AlertMessage) {}

    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override {
        if (name == pressAction()) static_cast<NoticeBar*>(object())->act();
    }
};

QAccessibleInterface* interfaceOf(const QString&, QObject* object) {
    auto* notice = dynamic_cast<NoticeBar*>(object);
    return notice ? new NoticeInterface(notice) : nullptr;
}

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
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* before, QWidget* now) {
        if (now == this) cameFrom_ = before;
    });
    [[maybe_unused]] static const bool once = [] {
        QAccessible::installFactory(interfaceOf);
        return true;
    }();
}

NoticeBar::~NoticeBar() = default;

void NoticeBar::present(const QString& text, double seconds, std::optional<ToastAction> action) {
    text_ = text;
    seconds_ = QAccessible::isActive() ? std::max(seconds, kRead) : seconds;
    action_ = std::move(action);
    setAccessibleName(text_);
    // What a press does.
    setAccessibleDescription(action_ ? shown(action_->title) : QString());
    setCursor(action_ ? Qt::PointingHandCursor : Qt::ArrowCursor);
    place();
    const bool replaces = isVisible();
    show();
    raise();
    update();
    if (underMouse() || hasFocus())
        clock_.reset();
    else
        startClock();
    QAccessibleEvent alert(this, QAccessible::Alert);
    tellAccessibility(alert);
    if (!replaces) return;
    // The bus knows no alerts: readers tell of what comes to be shown.
    QAccessibleEvent appears(this, QAccessible::ObjectShow);
    tellAccessibility(appears);
}

void NoticeBar::dismiss() {
    clock_.reset();
    action_.reset();
    // The keyboard goes back to where it came from.
    if (hasFocus() && cameFrom_) cameFrom_->setFocus(Qt::OtherFocusReason);
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
    const QFontMetricsF words(theme_.font(TextStyle::control, theme_.color(Token::onsel)));
    auto wanted = words.horizontalAdvance(text_.left(kMeasured)) + 2 * kSide;
    if (action_) wanted += kGap + words.horizontalAdvance(shown(action_->title));
    const auto room = qreal(parentWidget()->width() - 2 * kSide);
    const auto width = static_cast<int>(std::ceil(std::min(wanted, room)));
    const auto height = theme_.scaled(kHeight);
    setGeometry((parentWidget()->width() - width) / 2, top_, width, height);
}

void NoticeBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme_.color(Token::sel));
    painter.drawRoundedRect(rect(), metrics::kGroupRadius, metrics::kGroupRadius);
    auto font = theme_.font(TextStyle::control, theme_.color(Token::onsel));
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

void NoticeBar::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) act();
}

void NoticeBar::act() {
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
        act();
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
