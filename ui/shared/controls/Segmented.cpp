#include "ui/shared/Controls.h"
#include "ui/shared/Theme.h"
#include "ui/shared/controls/SegmentedAccessibility.h"

#include <QAccessible>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace tintra {
namespace {

constexpr int kHeight = 28, kInset = 3, kSide = 10, kIcon = 20, kIconWidth = 32;

} // namespace

Segmented::Segmented(Theme& theme, std::vector<Choice> choices, QWidget* parent)
    : QWidget(parent), theme_(theme), choices_(std::move(choices)) {
    installSegmentedAccessibility();
    setFocusPolicy(Qt::TabFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setCurrent(0);
}

Segmented::~Segmented() = default;

int Segmented::widthOf(int choice) const {
    const auto& one = choices_[static_cast<std::size_t>(choice)];
    if (!one.icon.empty()) return theme_.scaled(kIconWidth);
    return QFontMetrics(theme_.font(TextStyle::control)).horizontalAdvance(one.text) + 2 * kSide;
}

QRect Segmented::rectOf(int choice) const {
    auto x = kInset;
    for (int i = 0; i < choice; ++i)
        x += widthOf(i);
    return {x, kInset, widthOf(choice), height() - 2 * kInset};
}

QSize Segmented::sizeHint() const {
    auto width = 2 * kInset;
    for (int i = 0; i < static_cast<int>(choices_.size()); ++i)
        width += widthOf(i);
    return {width, theme_.scaled(kHeight)};
}

void Segmented::setCurrent(int choice) {
    current_ = choice;
    setAccessibleDescription(choices_[static_cast<std::size_t>(choice)].text);
    update();
}

void Segmented::choose(int choice) {
    if (choice < 0 || choice >= static_cast<int>(choices_.size()) || choice == current_) return;
    setCurrent(choice);
    QAccessibleValueChangeEvent changedValue(this, choices_[static_cast<std::size_t>(choice)].text);
    QAccessible::updateAccessibility(&changedValue);
    if (chosen) chosen(choice);
}

void Segmented::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto whole = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(QPen(theme_.color(isEnabled() ? Token::edge : Token::line), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(whole, metrics::kControlRadius, metrics::kControlRadius);
    for (int i = 0; i < static_cast<int>(choices_.size()); ++i) {
        const auto& choice = choices_[static_cast<std::size_t>(i)];
        const QRectF place = rectOf(i);
        auto ink = theme_.color(isEnabled() ? Token::ink2 : Token::off);
        if (i == current_ || i == hovered_) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(theme_.color(i == current_ ? Token::sel : Token::hover));
            painter.drawRoundedRect(place, metrics::kChipRadius, metrics::kChipRadius);
        }
        if (i == current_) ink = theme_.color(Token::onsel);
        painter.setPen(ink);
        painter.setFont(theme_.font(TextStyle::control, ink));
        if (choice.icon.empty())
            painter.drawText(place, Qt::AlignCenter, choice.text);
        else
            painter.drawPixmap(place.center() - QPointF(kIcon / 2.0, kIcon / 2.0),
                               theme_.icon(choice.icon, kIcon, ink, devicePixelRatioF()));
    }
    if (hasFocus())
        paintFocusRing(painter, theme_, whole.adjusted(1, 1, -1, -1), metrics::kControlRadius);
}

void Segmented::mousePressEvent(QMouseEvent* event) {
    for (int i = 0; i < static_cast<int>(choices_.size()); ++i)
        if (rectOf(i).contains(event->pos())) choose(i);
}

void Segmented::mouseMoveEvent(QMouseEvent* event) {
    const auto before = hovered_;
    hovered_ = -1;
    for (int i = 0; i < static_cast<int>(choices_.size()); ++i)
        if (rectOf(i).contains(event->pos())) hovered_ = i;
    if (hovered_ == before) return;
    if (hovered_ >= 0) setToolTip(choices_[static_cast<std::size_t>(hovered_)].text);
    update();
}

void Segmented::leaveEvent(QEvent*) {
    hovered_ = -1;
    update();
}

void Segmented::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        choose(current_ - 1);
        break;
    case Qt::Key_Right:
    case Qt::Key_Down:
        choose(current_ + 1);
        break;
    case Qt::Key_Home:
        choose(0);
        break;
    case Qt::Key_End:
        choose(static_cast<int>(choices_.size()) - 1);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace tintra
