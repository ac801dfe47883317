#include "ui/editor/EditorGradient.h"

#include "colour/Hsb.h"
#include "ui/shared/SwatchPainter.h"

#include <algorithm>
#include <cmath>

namespace tintra {
namespace {

/// A multiple of six, so that the corners of the hue circle fall on stops.
constexpr int kParts = 72;

QRgb seen(const WashColor& color, Vision vision) {
    return toQColor(simulate(vision, color)).rgba();
}

/// `at` of 256 parts from one pixel to another.
QRgb between(QRgb from, QRgb to, int at) {
    const auto part = [at](int a, int b) { return a + ((b - a) * at + 128) / 256; };
    return qRgba(part(qRed(from), qRed(to)), part(qGreen(from), qGreen(to)),
                 part(qBlue(from), qBlue(to)), part(qAlpha(from), qAlpha(to)));
}

} // namespace

GradientStops channelStops(const EditedFigures& figures, std::size_t channel, Vision vision) {
    const auto& of = figures.space().channels[channel];
    GradientStops stops;
    stops.reserve(kParts + 1);
    for (int i = 0; i <= kParts; ++i)
        stops.push_back(
            seen(figures.with(channel, of.from + (of.to - of.from) * i / kParts, 1), vision));
    return stops;
}

GradientStops alphaStops(const WashColor& color, Vision vision) {
    const auto opaque = seen({color.r, color.g, color.b, 1}, vision);
    return {opaque & 0x00FFFFFF, opaque};
}

GradientStops hueStops(Vision vision) {
    GradientStops stops;
    stops.reserve(kParts + 1);
    for (int i = 0; i <= kParts; ++i)
        stops.push_back(seen(
            WashColor::fromRgb(rgbFromHsb({static_cast<double>(i) / kParts, 1, 1}), 1), vision));
    return stops;
}

QImage gradientRow(const GradientStops& stops, int width) {
    QImage row(std::max(width, 1), 1, QImage::Format_ARGB32);
    auto* const pixels = reinterpret_cast<QRgb*>(row.scanLine(0));
    const auto parts = static_cast<int>(stops.size()) - 1;
    for (int x = 0; x < row.width(); ++x) {
        if (parts < 1) {
            pixels[x] = stops.empty() ? 0 : stops.front();
            continue;
        }
        const auto place = 256 * parts * x / std::max(1, row.width() - 1);
        const auto part = std::min(place / 256, parts - 1);
        const auto stop = static_cast<std::size_t>(part);
        pixels[x] = between(stops[stop], stops[stop + 1], place - 256 * part);
    }
    return row;
}

} // namespace tintra
