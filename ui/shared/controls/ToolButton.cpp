#include "ui/shared/Controls.h"
#include "ui/shared/Figures.h"
#include "ui/shared/Theme.h"

#include <QEvent>
#include <QPainter>
#include <algorithm>
#include <optional>

namespace tintra {
namespace {

constexpr int kIcon = 20, kSmallIcon = 16, kBadge = 16;

void paintBadge(QPainter& painter, const Theme& theme, const QRectF& button, int count) {
    const auto text = count > 99 ? QStringLiteral("99+") : QString::number(count);
    painter.setFont(theme.font(TextStyle::caption, theme.color(Token::onsel)));
    const auto width = std::max<qreal>(kBadge, figuresWidth(painter.font(), text) + 8);
    const QRectF place(button.right() - width + 4, button.top() - 1, width, kBadge);
    painter.setPen(QPen(theme.color(Token::panel), 1.5));
    painter.setBrush(theme.color(Token::sel));
    painter.drawRoundedRect(place, kBadge / 2.0, kBadge / 2.0);
    painter.setPen(theme.color(Token::onsel));
    drawFigures(painter, place, Qt::AlignCenter, text);
}

} // namespace

ToolButton::ToolButton(Theme& theme, std::string_view icon, int side, QWidget* parent)
    : QAbstractButton(parent), theme_(theme), icon_(icon), side_(side) {
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
}

void ToolButton::setIconName(std::string_view icon) {
    icon_ = icon;
    update();
}

void ToolButton::setTitle(const QString& title, const QString& key) {
    setAccessibleName(title);
    // Otherwise the tooltip, which says the title again.
    setAccessibleDescription(key.isEmpty() ? title : key);
    setToolTip(key.isEmpty() ? title : QStringLiteral("%1 (%2)").arg(title, key));
}

void ToolButton::setBadge(int count) {
    badge_ = count;
    update();
}

QSize ToolButton::sizeHint() const {
    const auto side = theme_.scaled(side_);
    return {side, side};
}

bool ToolButton::event(QEvent* event) {
    if (event->type() == QEvent::StyleChange) updateGeometry();
    return QAbstractButton::event(event);
}

void ToolButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF whole = rect();
    auto mark = theme_.color(isEnabled() ? Token::ink2 : Token::off);
    std::optional<QColor> ground;
    if (isDown())
        ground = theme_.color(Token::press);
    else if (isEnabled() && underMouse())
        ground = theme_.color(Token::hover);
    if (isChecked()) {
        ground = theme_.color(Token::sel);
        mark = theme_.color(Token::onsel);
    }
    if (ground) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(*ground);
        painter.drawRoundedRect(whole, metrics::kControlRadius, metrics::kControlRadius);
    }
    const auto ratio = devicePixelRatioF();
    auto picture = theme_.icon(icon_, side_ < 28 ? kSmallIcon : kIcon, mark, ratio);
    // A few are drawn small only.
    if (picture.isNull()) picture = theme_.icon(icon_, kSmallIcon, mark, ratio);
    const auto size = picture.width() / ratio;
    painter.drawPixmap(whole.center() - QPointF(size / 2, size / 2), picture);
    if (badge_ > 0) paintBadge(painter, theme_, whole, badge_);
    if (hasFocus())
        paintFocusRing(painter, theme_, whole.adjusted(2, 2, -2, -2), metrics::kControlRadius);
}

void paintFocusRing(QPainter& painter, const Theme& theme, const QRectF& around, int radius) {
    painter.setPen(QPen(theme.color(Token::ink), metrics::kFocusWidth));
    painter.setBrush(Qt::NoBrush);
    const auto half = metrics::kFocusWidth / 2.0;
    painter.drawRoundedRect(around.adjusted(-half, -half, half, half), radius, radius);
}

} // namespace tintra
