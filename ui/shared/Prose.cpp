#include "ui/shared/Prose.h"

#include <QPainter>
#include <QTextLayout>
#include <algorithm>

namespace tintra {
namespace {

/// More than any dialogue has room for.
constexpr qsizetype kLongest = 2000;
/// Shows that this much of the end, where the sense of a sentence is, stays readable.
constexpr qsizetype kEnd = 40;

void place(QTextLayout& layout, int width, int lineHeight) {
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (int line = 0;; ++line) {
        auto next = layout.createLine();
        if (!next.isValid()) break;
        next.setLineWidth(width);
        next.setPosition(QPointF(0, line * lineHeight + (lineHeight - next.height()) / 2));
    }
    layout.endLayout();
}

int linesOf(const QString& text, const QFont& font, int width) {
    QTextLayout layout(text, font);
    place(layout, width, 1);
    return std::max(1, layout.lineCount());
}

/// The text without so many characters of its middle.
QString without(const QString& text, qsizetype removed) {
    const auto kept = text.size() - removed;
    const auto end = std::min(kEnd, kept / 2);
    auto head = kept - end, tail = text.size() - end;
    if (head > 0 && text[head - 1].isHighSurrogate()) --head;
    if (tail < text.size() && text[tail].isLowSurrogate()) ++tail;
    return text.left(head) + QChar(0x2026) + text.mid(tail);
}

} // namespace

Prose::Prose(const Theme& theme, TextStyle style, Token ink, int width, int lines, QWidget* parent)
    : QLabel(parent), theme_(theme), style_(style), ink_(ink), width_(width), lines_(lines) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(width ? QSizePolicy::Fixed : QSizePolicy::Preferred, QSizePolicy::Minimum);
}

void Prose::setProse(const QString& text) {
    whole_ = text;
    // What screen readers read.
    setText(text);
    updateGeometry();
    update();
}

int Prose::wrapWidth() const {
    return width_ ? theme_.scaled(width_) : width();
}

QString Prose::fitted(int width) const {
    const auto font = theme_.font(style_);
    auto text = whole_.size() <= kLongest ? whole_ : without(whole_, whole_.size() - kLongest);
    if (linesOf(text, font, width) <= lines_) return text;
    // The least that has to go, by halving.
    qsizetype fits = text.size() - 1, tooMany = 0;
    while (fits - tooMany > 1) {
        const auto middle = (fits + tooMany) / 2;
        (linesOf(without(text, middle), font, width) <= lines_ ? fits : tooMany) = middle;
    }
    return without(text, fits);
}

QSize Prose::sizeHint() const {
    const auto width = width_ ? wrapWidth() : theme_.scaled(300);
    return {width, heightForWidth(width)};
}

QSize Prose::minimumSizeHint() const {
    return width_ ? sizeHint() : QSize(40, theme_.lineHeight(style_));
}

int Prose::heightForWidth(int width) const {
    return linesOf(fitted(width), theme_.font(style_), width) * theme_.lineHeight(style_);
}

void Prose::resizeEvent(QResizeEvent*) {
    const auto shown = fitted(wrapWidth());
    setToolTip(shown == whole_ ? QString() : whole_.left(kLongest));
}

void Prose::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(theme_.color(isEnabled() ? ink_ : Token::off));
    QTextLayout layout(fitted(wrapWidth()), theme_.font(style_));
    place(layout, wrapWidth(), theme_.lineHeight(style_));
    layout.draw(&painter, {});
}

} // namespace tintra
