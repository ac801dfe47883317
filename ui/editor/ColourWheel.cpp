#include "ui/editor/ColourWheel.h"

#include "ui/editor/EditorGradient.h"
#include "ui/shared/Controls.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QConicalGradient>
#include <QPaintEvent>
#include <QPainter>
#include <cmath>
#include <numbers>

namespace tintra {
namespace {

double positive(double degrees) {
    return degrees - std::floor(degrees / 360) * 360;
}

QImage ringOf(int side, qreal width, Vision vision) {
    QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QConicalGradient gradient(side / 2.0, side / 2.0, 0);
    const auto stops = hueStops(vision);
    for (std::size_t i = 0; i < stops.size(); ++i)
        gradient.setColorAt(static_cast<qreal>(i) / static_cast<qreal>(stops.size() - 1),
                            QColor::fromRgb(stops[i]));
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(gradient, width));
    const auto half = width / 2;
    painter.drawEllipse(QRectF(picture.rect()).adjusted(half, half, -half, -half));
    return picture;
}

} // namespace

ColourWheel::ColourWheel(Theme& theme, QWidget* parent) : PickerControl(theme, parent) {
    setAccessibleName(worded("Hue"));
    setCursor(Qt::CrossCursor);
}

qreal ColourWheel::radius() const {
    return (theme().scaled(kDiameter) - theme().scaled(kWidth)) / 2.0;
}

QPointF ColourWheel::thumbPlace() const {
    const auto angle = hue_ * std::numbers::pi / 180;
    return QRectF(rect()).center() + radius() * QPointF(std::cos(angle), -std::sin(angle));
}

QRect ColourWheel::thumbRect() const {
    const qreal reach = theme().scaled(kHalo);
    const auto centre = thumbPlace();
    return QRectF(centre.x() - reach, centre.y() - reach, 2 * reach, 2 * reach).toAlignedRect();
}

void ColourWheel::show(double hue, const QColor& thumb, Vision vision) {
    if (vision != vision_) {
        picture_ = {};
        update();
    }
    const bool moves = hue != hue_;
    if (moves || thumb != thumb_) update(thumbRect());
    hue_ = hue;
    thumb_ = thumb;
    vision_ = vision;
    if (!moves) return;
    update(thumbRect());
    announce();
}

QString ColourWheel::spokenValue() const {
    return QString::number(std::lround(hue_)) + QChar(0xB0);
}

void ColourWheel::choose(double value) {
    if (changed) changed(positive(value));
}

const QImage& ColourWheel::picture() {
    const auto ratio = devicePixelRatioF();
    const auto side = static_cast<int>(std::lround(theme().scaled(kDiameter) * ratio));
    if (picture_.width() != side) {
        picture_ = ringOf(side, theme().scaled(kWidth) * ratio, vision_);
        picture_.setDevicePixelRatio(ratio);
    }
    return picture_;
}

void ColourWheel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto centre = QRectF(rect()).center();
    const auto half = theme().scaled(kDiameter) / 2.0;
    painter.drawImage(centre - QPointF(half, half), picture());
    if (showsFocus()) {
        painter.setPen(QPen(theme().color(Token::ink), metrics::kFocusWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(centre, half + 3, half + 3);
    }
    paintThumb(painter, thumbPlace(), thumb_);
}

void ColourWheel::resizeEvent(QResizeEvent*) {
    picture_ = {};
}

bool ColourWheel::takes(QPointF press) const {
    const auto from = press - QRectF(rect()).center();
    const auto off = std::abs(std::hypot(from.x(), from.y()) - radius());
    return off <= theme().scaled(kWidth) / 2.0 + 2;
}

void ColourWheel::dragTo(QPointF place) {
    const auto from = place - QRectF(rect()).center();
    if (!from.isNull()) choose(std::atan2(-from.y(), from.x()) * 180 / std::numbers::pi);
}

void ColourWheel::stepBy(int right, int up) {
    choose(hue_ + right + up);
}

void ColourWheel::goToEnd(bool last) {
    choose(last ? 359 : 0);
}

} // namespace tintra
