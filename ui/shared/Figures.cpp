#include "ui/shared/Figures.h"

#include "ui/shared/TextLines.h"

#include <QFontMetricsF>
#include <QHash>
#include <algorithm>

namespace tintra {
namespace {

/// Few pieces make all figures. They stay: at the program's exit what fonts are made of is gone
/// before them.
TextLines& pieces() {
    static auto* const lines = new TextLines;
    return *lines;
}

qreal widestDigit(const QFont& font) {
    static QHash<QFont, qreal> found;
    if (const auto known = found.constFind(font); known != found.constEnd()) return *known;
    const QFontMetricsF metrics(font);
    qreal widest = 0;
    for (char digit = '0'; digit <= '9'; ++digit)
        widest = std::max(widest, metrics.horizontalAdvance(QLatin1Char(digit)));
    constexpr qsizetype kMost = 256;
    if (found.size() >= kMost) found.clear();
    return *found.insert(font, widest);
}

bool isDigit(QChar character) {
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

/// Calls `piece` with each digit alone and each run of other characters, and the width each takes.
template <class Piece>
void forPieces(const QFont& font, const QString& text, const Piece& piece) {
    const auto digitWidth = widestDigit(font);
    for (qsizetype at = 0; at < text.size();) {
        auto end = at + 1;
        if (isDigit(text[at])) {
            piece(text.mid(at, 1), digitWidth);
        } else {
            while (end < text.size() && !isDigit(text[end]))
                ++end;
            const auto run = text.mid(at, end - at);
            piece(run, pieces().width(font, run));
        }
        at = end;
    }
}

} // namespace

qreal figuresWidth(const QFont& font, const QString& text) {
    qreal width = 0;
    forPieces(font, text, [&](const QString&, qreal piece) { width += piece; });
    return width;
}

void drawFigures(QPainter& painter, const QRectF& in, Qt::Alignment alignment,
                 const QString& text) {
    const auto font = painter.font();
    const auto width = figuresWidth(font, text);
    auto place = in;
    if (alignment & Qt::AlignRight) place.setLeft(in.right() - width);
    if (alignment & Qt::AlignHCenter) place.setLeft(in.center().x() - width / 2);
    const auto high = QFontMetricsF(font).height();
    if (alignment & Qt::AlignBottom)
        place.setTop(in.bottom() - high);
    else if (!(alignment & Qt::AlignVCenter))
        place.setBottom(in.top() + high);
    forPieces(font, text, [&](const QString& piece, qreal taken) {
        const auto own = pieces().width(font, piece);
        pieces().paint(painter, font, place.translated((taken - own) / 2, 0), Qt::AlignLeft, piece);
        place.translate(taken, 0);
    });
}

} // namespace tintra
