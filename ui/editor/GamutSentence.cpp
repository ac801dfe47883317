#include "ui/editor/GamutSentence.h"

#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QPainter>

namespace tintra {
namespace {

constexpr int kIcon = 16, kInset = 11, kTop = 7, kWords = 35;

} // namespace

GamutSentence::GamutSentence(Theme& theme, QWidget* parent)
    : QLabel(shown("Outside the CMYK gamut. Editing here moves the colour to the nearest "
                   "printable one."),
             parent),
      theme_(theme) {
    setWordWrap(true);
    setContentsMargins(kWords, kTop, kInset, kTop);
    restyle();
}

void GamutSentence::restyle() {
    setFont(theme_.font(TextStyle::small));
}

void GamutSentence::paintEvent(QPaintEvent* event) {
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(theme_.color(Token::edge), 1));
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5),
                                metrics::kControlRadius, metrics::kControlRadius);
        const auto top = kTop + (fontMetrics().height() - kIcon) / 2.0;
        painter.drawPixmap(
            QPointF(kInset, top),
            theme_.icon("warning", kIcon, theme_.color(Token::ink), devicePixelRatioF()));
    }
    QLabel::paintEvent(event);
}

} // namespace tintra
