#include "ui/shared/Badge.h"

#include "ui/shared/Theme.h"

#include <QFontMetricsF>

namespace tintra {
namespace {

constexpr int kHeight = 18, kSide = 7, kType = 10;
constexpr qreal kSpacing = 0.3;

/// Capitals and figures alone, so smaller and wider set than a caption.
QFont fontOf(const Theme& theme) {
    auto font = theme.font(TextStyle::caption);
    font.setWeight(QFont::DemiBold);
    font.setPixelSize(theme.scaled(kType));
    font.setLetterSpacing(QFont::AbsoluteSpacing, kSpacing);
    return font;
}

} // namespace

qreal badgeWidth(const Theme& theme, const QString& text) {
    return QFontMetricsF(fontOf(theme)).horizontalAdvance(text) + 2 * kSide;
}

qreal paintBadge(QPainter& painter, const Theme& theme, const QString& text, qreal left,
                 qreal middle, BadgeFill fill) {
    const bool isFilled = fill == BadgeFill::yes;
    const auto height = theme.scaled(kHeight);
    const QRectF place(left, middle - height / 2.0, badgeWidth(theme, text), height);
    painter.setPen(QPen(theme.color(isFilled ? Token::sel : Token::edge), 1));
    painter.setBrush(isFilled ? QBrush(theme.color(Token::sel)) : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(place.adjusted(0.5, 0.5, -0.5, -0.5), metrics::kChipRadius,
                            metrics::kChipRadius);
    painter.setFont(fontOf(theme));
    painter.setPen(theme.color(isFilled ? Token::onsel : Token::ink2));
    painter.drawText(place, Qt::AlignCenter, text);
    return place.right();
}

} // namespace tintra
