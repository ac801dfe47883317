#include "ui/shared/Beginning.h"

#include "ui/shared/Canvas.h"
#include "ui/shared/Controls.h"
#include "ui/shared/Theme.h"

#include <QFontMetricsF>

namespace tintra {
namespace {

constexpr int kPadding = 14, kIcon = 20, kWordsAt = 46;

} // namespace

void paintBeginning(QPainter& painter, const Theme& theme, const CanvasItem& item,
                    std::string_view icon, BeginningState state) {
    const auto ink = theme.color(Token::ink);
    if (state.hovered) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme.color(state.pressed ? Token::press : Token::hover));
        painter.drawRoundedRect(item.rect, metrics::kControlRadius, metrics::kControlRadius);
    }
    if (state.focused)
        paintFocusRing(painter, theme, item.rect.adjusted(1, 1, -1, -1), metrics::kControlRadius);
    const auto middle = item.rect.center().y();
    painter.drawPixmap(QPointF(item.rect.left() + kPadding, middle - kIcon / 2.0),
                       theme.icon(icon, kIcon, ink, painter.device()->devicePixelRatioF()));
    const auto words = item.rect.adjusted(kWordsAt, 0, -kPadding, 0);
    const auto font = theme.font(TextStyle::control);
    const QFontMetricsF measure(font);
    const auto needed = measure.horizontalAdvance(item.name);
    painter.setFont(font);
    painter.setPen(ink);
    painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter,
                     measure.elidedText(item.name, Qt::ElideRight, words.width()));
    const auto keyFont = theme.font(TextStyle::body);
    const auto key = QFontMetricsF(keyFont).horizontalAdvance(item.description);
    if (needed + key + kPadding > words.width()) return;
    painter.setFont(keyFont);
    painter.setPen(theme.color(Token::ink3));
    painter.drawText(words, Qt::AlignRight | Qt::AlignVCenter, item.description);
}

} // namespace tintra
