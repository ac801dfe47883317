#include "ui/shared/DropRing.h"

#include "ui/shared/Theme.h"

#include <QPainter>

namespace tintra {

DropRing::DropRing(const Theme& theme, QWidget* parent) : QWidget(parent), theme_(theme) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void DropRing::setShown(bool shows) {
    setVisible(shows);
    raise();
}

void DropRing::paintEvent(QPaintEvent*) {
    constexpr qreal kRing = 3;
    QPainter painter(this);
    painter.setPen(QPen(theme_.color(Token::ink), kRing));
    painter.drawRect(QRectF(rect()).adjusted(kRing / 2, kRing / 2, -kRing / 2, -kRing / 2));
}

} // namespace tintra
