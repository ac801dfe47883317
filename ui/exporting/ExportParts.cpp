#include "ui/exporting/ExportParts.h"

#include "ui/Ui.h"
#include "ui/shared/Figures.h"
#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Text.h"

#include <QFontMetricsF>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

namespace tintra {
namespace {

constexpr int kStrip = 40, kStripRadius = 6;
/// What a field keeps free at both ends.
constexpr int kFieldInset = 9;

} // namespace

ColourStrip::ColourStrip(Ui& ui, QWidget* parent) : QWidget(parent), ui_(ui) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ColourStrip::setColors(std::vector<WashColor> colors) {
    colors_ = std::move(colors);
    setAccessibleName(worded("1 swatch", "%n swatches", static_cast<qsizetype>(colors_.size())));
    update();
}

QSize ColourStrip::sizeHint() const {
    return {300, ui_.theme.scaled(kStrip)};
}

void ColourStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath shape;
    shape.addRoundedRect(rect(), kStripRadius, kStripRadius);
    painter.setClipPath(shape);
    const auto count = static_cast<double>(colors_.size());
    const auto edge = [&](std::size_t i) {
        const auto ratio = devicePixelRatioF();
        return std::round(static_cast<double>(i) * width() * ratio / count) / ratio;
    };
    for (std::size_t i = 0; i < colors_.size(); ++i)
        ui_.painter.fill(painter, QRectF(QPointF(edge(i), 0), QPointF(edge(i + 1), height())),
                         colors_[i], Vision::typical);
    painter.setClipping(false);
    ui_.painter.hairline(painter, rect(), kStripRadius);
}

FileNameField::FileNameField(const Theme& theme, QWidget* parent)
    : QLineEdit(parent), theme_(theme) {
    setAccessibleName(worded("Name"));
}

void FileNameField::setExtension(const QString& extension) {
    extension_ = extension;
    setAccessibleDescription(extension);
    setTextMargins(0, 0, fontMetrics().horizontalAdvance(extension) + 2, 0);
    update();
}

void FileNameField::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    painter.setFont(font());
    painter.setPen(theme_.color(Token::ink3));
    // Where the text ends, or at the end of the field when the text is longer.
    const auto wide = QFontMetricsF(font()).horizontalAdvance(extension_);
    const auto last = width() - wide - kFieldInset;
    const auto end = kFieldInset + QFontMetricsF(font()).horizontalAdvance(text().left(1000));
    painter.drawText(QRectF(std::min<qreal>(end, last), 0, wide + 2, height()), Qt::AlignVCenter,
                     extension_);
}

FigureLabel::FigureLabel(const Theme& theme, QWidget* parent) : QWidget(parent), theme_(theme) {}

void FigureLabel::setText(const QString& text) {
    if (text == text_) return;
    text_ = text;
    setAccessibleName(text);
    updateGeometry();
    update();
}

QSize FigureLabel::sizeHint() const {
    return {static_cast<int>(std::ceil(figuresWidth(theme_.font(TextStyle::body), text_))) + 2,
            theme_.lineHeight(TextStyle::body)};
}

void FigureLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setFont(theme_.font(TextStyle::body));
    painter.setPen(theme_.color(Token::ink3));
    drawFigures(painter, rect(), Qt::AlignRight | Qt::AlignVCenter, text_);
}

Surface::Surface(const Theme& theme, Token token, QWidget* parent)
    : QWidget(parent), theme_(theme), token_(token) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Surface::paintEvent(QPaintEvent* event) {
    QPainter(this).fillRect(event->rect(), theme_.color(token_));
}

RaisedFrame::RaisedFrame(const Theme& theme, QWidget* content, QWidget* parent)
    : QWidget(parent), theme_(theme) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(2, 2, 2, 2);
    column->addWidget(content);
}

void RaisedFrame::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(theme_.isHighContrast() ? QPen(theme_.color(Token::line), 1) : Qt::NoPen);
    painter.setBrush(theme_.color(Token::raised));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), metrics::kControlRadius,
                            metrics::kControlRadius);
}

} // namespace tintra
