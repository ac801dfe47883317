#pragma once

#include <QFont>
#include <QHash>
#include <QPainter>
#include <QStaticText>
#include <QStringList>

namespace tintra {

/// Lines of text that are laid out once and painted often: laying out costs more than all else in a
/// frame of many swatches. The least used are not told apart: when there are too many, all go.
/// Main loop.
class TextLines {
public:
    /// Of the whole text, px.
    qreal width(const QFont& font, const QString& text);
    /// The text as far as it fits, with an ellipsis where it is cut.
    QString cut(const QFont& font, const QString& text, qreal room);
    /// The text in at most two lines, each as far as it fits.
    QStringList twoLines(const QFont& font, const QString& text, qreal room);
    /// Paints one line with the painter's pen, in the middle of the height of `in`.
    void paint(QPainter& painter, const QFont& font, const QRectF& in, Qt::AlignmentFlag side,
               const QString& text);

private:
    struct Key {
        QFont font;
        QString text;
        int room; ///< 64ths of a px; 0 for the whole, less for a line that is cut
        bool operator==(const Key&) const = default;
        friend std::size_t qHash(const Key& key, std::size_t seed = 0) {
            return qHashMulti(seed, key.font.weight(), key.font.pixelSize(), key.text, key.room);
        }
    };
    struct Line {
        QStaticText glyphs;
        qreal width, height;
    };

    static Key keyOf(const QFont& font, const QString& text, qreal room);
    const Line& line(const QFont& font, const QString& text);

    QHash<Key, Line> lines_;
    QHash<Key, QStringList> fitted_;
};

} // namespace tintra
