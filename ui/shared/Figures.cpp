#include "ui/shared/Figures.h"

#include <QFontMetricsF>
#include <algorithm>

namespace tintra {
namespace {

qreal widestDigit(const QFontMetricsF& metrics) {
    qreal widest = 0;
    for (char digit = '0'; digit <= '9'; ++digit)
        widest = std::max(widest, metrics.horizontalAdvance(QLatin1Char(digit)));
    return widest;
}

bool isDigit(QChar character) {
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

/// Calls `piece` with each digit alone and each run of other characters, and the width each takes.
template <class Piece>
void forPieces(const QFontMetricsF& metrics, const QString& text, const Piece& piece) {
    const auto digitWidth = widestDigit(metrics);
    for (qsizetype at = 0; at < text.size();) {
        auto end = at + 1;
        if (isDigit(text[at])) {
            piece(text.mid(at, 1), digitWidth);
        } else {
            while (end < text.size() && !isDigit(text[end]))
                ++end;
            const auto run = text.mid(at, end - at);
            piece(run, metrics.horizontalAdvance(run));
        }
        at = end;
    }
}

} // namespace

qreal figuresWidth(const QFont& font, const QString& text) {
    qreal width = 0;
    forPieces(QFontMetricsF(font), text, [&](const QString&, qreal piece) { width += piece; });
    return width;
}

void drawFigures(QPainter& painter, const QRectF& in, Qt::Alignment alignment,
                 const QString& text) {
    const QFontMetricsF metrics(painter.font());
    const auto width = figuresWidth(painter.font(), text);
    auto x = in.left();
    if (alignment & Qt::AlignRight) x = in.right() - width;
    if (alignment & Qt::AlignHCenter) x = in.center().x() - width / 2;
    auto baseline = in.top() + metrics.ascent();
    if (alignment & Qt::AlignBottom) baseline = in.bottom() - metrics.descent();
    if (alignment & Qt::AlignVCenter)
        baseline = in.center().y() + (metrics.ascent() - metrics.descent()) / 2;
    forPieces(metrics, text, [&](const QString& piece, qreal taken) {
        const auto own = metrics.horizontalAdvance(piece);
        painter.drawText(QPointF(x + (taken - own) / 2, baseline), piece);
        x += taken;
    });
}

} // namespace tintra
