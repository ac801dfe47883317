#include "ui/shared/Controls.h"
#include "ui/shared/Theme.h"

#include <QFontMetrics>
#include <QPainter>

namespace tintra {
namespace {

constexpr int kWidth = 36, kHeight = 20, kGap = 8, kRow = 28, kInset = 4;

} // namespace

Switch::Switch(Theme& theme, QWidget* parent) : QAbstractButton(parent), theme_(theme) {
    setCheckable(true);
    setFocusPolicy(Qt::TabFocus);
}

QSize Switch::sizeHint() const {
    const auto words = QFontMetrics(theme_.font(TextStyle::body)).horizontalAdvance(text());
    return {kInset * 2 + kWidth + (words > 0 ? kGap + words : 0), theme_.scaled(kRow)};
}

void Switch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF track(kInset, (height() - kHeight) / 2.0, kWidth, kHeight);
    const auto border = theme_.color(isEnabled() ? Token::edge : Token::line);
    painter.setPen(isChecked() ? QPen(Qt::NoPen) : QPen(border, 1));
    painter.setBrush(theme_.color(isChecked() ? Token::sel : Token::panel));
    painter.drawRoundedRect(track.adjusted(0.5, 0.5, -0.5, -0.5), kHeight / 2.0, kHeight / 2.0);
    constexpr qreal kThumb = 14;
    const auto x = isChecked() ? track.right() - kThumb - 3 : track.left() + 3;
    painter.setPen(Qt::NoPen);
    painter.setBrush(isChecked() ? theme_.color(Token::onsel) : border);
    painter.drawEllipse(QRectF(x, track.center().y() - kThumb / 2, kThumb, kThumb));
    painter.setFont(theme_.font(TextStyle::body));
    painter.setPen(theme_.color(isEnabled() ? Token::ink : Token::off));
    painter.drawText(QRectF(track.right() + kGap, 0, width(), height()),
                     Qt::AlignLeft | Qt::AlignVCenter, text());
    if (hasFocus()) paintFocusRing(painter, theme_, track.adjusted(-2, -2, 2, 2), 12);
}

} // namespace tintra
