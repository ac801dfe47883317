#include "ui/editor/ColourPlane.h"

#include "colour/Hsb.h"
#include "ui/shared/Controls.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <span>

namespace tintra {
namespace {

constexpr int kRadius = 4;

/// One row: from grey to the pure hue, both at one brightness; in 65536ths of a byte.
void fillRow(std::span<std::uint8_t> rgba, const Rgb& pure, double brightness) {
    constexpr double kOne = 65536;
    const auto pixels = static_cast<int>(rgba.size() / 4);
    const auto white = brightness * 255 * kOne;
    const auto step = [&](double share) {
        return static_cast<int>(white * (1 - share) / std::max(1, pixels - 1));
    };
    const int red = step(pure.r), green = step(pure.g), blue = step(pure.b);
    const int first = static_cast<int>(white + kOne / 2);
    auto* pixel = rgba.data();
    for (int i = 0; i < pixels; ++i, pixel += 4) {
        pixel[0] = static_cast<std::uint8_t>((first - i * red) >> 16);
        pixel[1] = static_cast<std::uint8_t>((first - i * green) >> 16);
        pixel[2] = static_cast<std::uint8_t>((first - i * blue) >> 16);
        pixel[3] = 255;
    }
}

QImage planeOf(double hue, QSize size, Vision vision) {
    QImage picture(size, QImage::Format_RGBA8888);
    const auto pure = rgbFromHsb({hue / 360, 1, 1});
    const auto bytes = static_cast<std::size_t>(size.width()) * 4;
    for (int y = 0; y < size.height(); ++y) {
        const std::span row(picture.scanLine(y), bytes);
        fillRow(row, pure, 1 - y / std::max(1.0, size.height() - 1.0));
        simulatePicture(vision, row);
    }
    return picture;
}

} // namespace

ColourPlane::ColourPlane(Theme& theme, QWidget* parent) : PickerControl(theme, parent) {
    setAccessibleName(worded("Saturation and brightness"));
    setCursor(Qt::CrossCursor);
}

QRectF ColourPlane::plane() const {
    const auto halo = theme().scaled(kHalo);
    return QRectF(rect()).adjusted(halo, halo, -halo, -halo);
}

QPointF ColourPlane::thumbPlace() const {
    const auto in = plane();
    return {in.left() + saturation_ / 100 * in.width(),
            in.bottom() - brightness_ / 100 * in.height()};
}

QRect ColourPlane::thumbRect() const {
    const qreal reach = theme().scaled(kHalo);
    const auto centre = thumbPlace();
    return QRectF(centre.x() - reach, centre.y() - reach, 2 * reach, 2 * reach).toAlignedRect();
}

void ColourPlane::show(double hue, double saturation, double brightness, const QColor& thumb,
                       Vision vision) {
    if (hue != hue_ || vision != vision_) {
        picture_ = {};
        update();
    }
    const bool moves = saturation != saturation_ || brightness != brightness_;
    if (moves || thumb != thumb_) update(thumbRect());
    hue_ = hue;
    vision_ = vision;
    saturation_ = saturation;
    brightness_ = brightness;
    thumb_ = thumb;
    if (!moves) return;
    update(thumbRect());
    announce();
}

QString ColourPlane::spokenValue() const {
    return QStringLiteral("%1 %, %2 %").arg(std::lround(saturation_)).arg(std::lround(brightness_));
}

const QImage& ColourPlane::picture() {
    const auto ratio = devicePixelRatioF();
    const auto size = (plane().size() * ratio).toSize();
    if (picture_.size() != size || picture_.devicePixelRatio() != ratio) {
        picture_ = planeOf(hue_, size, vision_);
        roundCorners(picture_, kRadius * ratio);
        picture_.setDevicePixelRatio(ratio);
    }
    return picture_;
}

void ColourPlane::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto in = plane();
    if (in.isEmpty()) return;
    painter.drawImage(in.topLeft(), picture());
    painter.setPen(QPen(QColor(127, 127, 127, 89), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(in.adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
    if (showsFocus())
        paintFocusRing(painter, theme(), in.adjusted(-2, -2, 2, 2), metrics::kControlRadius);
    paintThumb(painter, thumbPlace(), thumb_);
}

void ColourPlane::resizeEvent(QResizeEvent*) {
    picture_ = {};
}

bool ColourPlane::takes(QPointF press) const {
    return plane().contains(press) || thumbRect().contains(press.toPoint());
}

void ColourPlane::dragTo(QPointF place) {
    const auto in = plane();
    report((place.x() - in.left()) / in.width() * 100,
           (in.bottom() - place.y()) / in.height() * 100);
}

void ColourPlane::stepBy(int right, int up) {
    report(saturation_ + right, brightness_ + up);
}

void ColourPlane::goToEnd(bool last) {
    report(last ? 100 : 0, brightness_);
}

void ColourPlane::report(double saturation, double brightness) {
    if (changed) changed(std::clamp(saturation, 0.0, 100.0), std::clamp(brightness, 0.0, 100.0));
}

} // namespace tintra
