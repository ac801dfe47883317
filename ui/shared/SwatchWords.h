#pragma once

#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Theme.h"
#include "ui/shared/TextLines.h"

#include <QRectF>
#include <QString>

namespace tintra {

/// Where the words of a swatch stand, and their painting.
class SwatchWords {
public:
    SwatchWords(const Theme& theme, TextLines& lines, const QRectF& in, const SwatchLook& look);

    /// In the coordinates of the swatch, rotated shapes included; empty where a word has no room.
    QRectF name() const;
    QRectF code() const;
    /// What of a translucent swatch is flat, so that no word stands on the backdrop's pattern.
    QRectF ground() const;

    /// In `ink` on `ground`, the flat colour beneath.
    void paint(QPainter& painter, const QColor& ink, const QColor& ground) const;

private:
    void paintIndex(QPainter& painter, const QColor& ink, const QColor& ground) const;
    void paintOnSide(QPainter& painter) const;
    void paintName(QPainter& painter) const;
    void paintCode(QPainter& painter, const QColor& ink, const QColor& ground) const;
    QRectF indexRect() const;
    int nameLines() const;
    /// "60%" for a translucent colour, else nothing.
    QString share() const;

    /// The face that words are measured in: of dark ink, which is the wider one, so that a swatch
    /// has the same lines whatever its colour.
    QFont measured(TextStyle style) const;

    const Theme& theme_;
    TextLines& lines_;
    const QRectF in_;
    const SwatchLook& look_;
};

} // namespace tintra
