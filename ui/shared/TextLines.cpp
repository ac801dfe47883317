#include "ui/shared/TextLines.h"

#include <QFontMetricsF>
#include <QTextLayout>
#include <cmath>

namespace tintra {
namespace {

constexpr qsizetype kMost = 4096; ///< lines kept

QStringList broken(const QFont& font, const QString& text, qreal room) {
    const QFontMetricsF measure(font);
    QTextLayout layout(text, font);
    layout.beginLayout();
    auto line = layout.createLine();
    line.setLineWidth(room);
    layout.endLayout();
    const auto cut = line.textStart() + line.textLength();
    // A line holds a word at least, however long that is.
    const auto first = measure.elidedText(text.left(cut).trimmed(), Qt::ElideRight, room);
    const auto rest = text.mid(cut).trimmed();
    if (rest.isEmpty()) return {first};
    return {first, measure.elidedText(rest, Qt::ElideRight, room)};
}

/// What is in the map, or is made and put there.
template <class Map, class Make>
const typename Map::mapped_type& kept(Map& map, const typename Map::key_type& key,
                                      const Make& make) {
    if (const auto found = map.constFind(key); found != map.constEnd()) return *found;
    if (map.size() >= kMost) map.clear();
    return *map.insert(key, make());
}

} // namespace

TextLines::Key TextLines::keyOf(const QFont& font, const QString& text, qreal room) {
    constexpr int kUnits = 64;
    return {font, text, static_cast<int>(room * kUnits)};
}

const TextLines::Line& TextLines::line(const QFont& font, const QString& text) {
    return kept(lines_, keyOf(font, text, 0), [&] {
        const QFontMetricsF measure(font);
        Line made{QStaticText(text), measure.horizontalAdvance(text), std::ceil(measure.height())};
        made.glyphs.setTextFormat(Qt::PlainText);
        return made;
    });
}

qreal TextLines::width(const QFont& font, const QString& text) {
    return line(font, text).width;
}

QString TextLines::cut(const QFont& font, const QString& text, qreal room) {
    if (text.isEmpty() || width(font, text) <= room) return text;
    return kept(fitted_, keyOf(font, text, -room),
                [&] {
                    return QStringList(QFontMetricsF(font).elidedText(text, Qt::ElideRight, room));
                })
        .first();
}

QStringList TextLines::twoLines(const QFont& font, const QString& text, qreal room) {
    if (text.isEmpty() || width(font, text) <= room) return {text};
    return kept(fitted_, keyOf(font, text, room), [&] { return broken(font, text, room); });
}

void TextLines::paint(QPainter& painter, const QFont& font, const QRectF& in,
                      Qt::AlignmentFlag side, const QString& text) {
    if (text.isEmpty()) return;
    const auto& [glyphs, width, height] = line(font, text);
    const auto left = side == Qt::AlignRight ? in.right() - width : in.left();
    painter.setFont(font);
    painter.drawStaticText(QPointF(left, in.top() + (in.height() - height) / 2), glyphs);
}

} // namespace tintra
