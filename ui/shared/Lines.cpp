#include "ui/shared/Lines.h"

#include <QTextLayout>

namespace tintra {

QStringList linesOf(const QString& text, const QFont& font, qreal width) {
    QStringList lines;
    QTextLayout layout(text, font);
    layout.beginLayout();
    for (auto line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines.push_back(text.mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
    return lines;
}

QStringList evenLinesOf(const QString& text, const QFont& font, qreal width) {
    const auto count = linesOf(text, font, width).size();
    auto narrow = width / 2, wide = width;
    while (wide - narrow > 4) {
        const auto middle = (narrow + wide) / 2;
        (linesOf(text, font, middle).size() > count ? narrow : wide) = middle;
    }
    return linesOf(text, font, wide);
}

} // namespace tintra
