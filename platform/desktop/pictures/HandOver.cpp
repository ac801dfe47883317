#include "platform/desktop/pictures/HandOver.h"

#include <QColorSpace>
#include <QImage>
#include <algorithm>
#include <cmath>

namespace tintra {

namespace {

constexpr int kRowsAtOnce = 16;

/// Whether the colours are described by nothing but the gamma of 1 / 0.45455 that PNG prescribes
/// for sRGB; it stands for the sRGB curve, not for a power.
bool isGammaOfSrgb(const QColorSpace& space) {
    constexpr double gamma = 1 / 0.45455;
    return space.description().isEmpty() &&
           space.transferFunction() == QColorSpace::TransferFunction::Gamma &&
           std::abs(static_cast<double>(space.gamma()) - gamma) < 1e-4;
}

/// The profile as it stands in the file, also where Qt itself cannot convert from it.
QByteArray profileOf(const QImage& image) {
    const auto space = image.colorSpace();
    const bool isSrgb = space == QColorSpace(QColorSpace::SRgb) || isGammaOfSrgb(space);
    return isSrgb ? QByteArray() : space.iccProfile();
}

/// Some rows of the picture as they are, sharing its memory.
QImage band(const QImage& image, int first) {
    const int count = std::min(kRowsAtOnce, image.height() - first);
    QImage rows(image.constScanLine(first), image.width(), count, image.bytesPerLine(),
                image.format());
    if (image.format() == QImage::Format_Indexed8 || image.depth() == 1)
        rows.setColorTable(image.colorTable());
    return rows;
}

} // namespace

bool handOver(const QImage& image, PixelRows& rows) {
    if (image.isNull()) return false;
    const auto profile = profileOf(image);
    rows.begin({{image.width(), image.height()},
                !image.hasAlphaChannel(),
                std::as_bytes(std::span(profile.constData(), static_cast<size_t>(profile.size()))),
                PictureColours::sRGB});
    for (int first = 0; first < image.height(); first += kRowsAtOnce) {
        const auto converted = band(image, first).convertToFormat(QImage::Format_RGBA8888);
        if (converted.isNull()) return false;
        for (int y = 0; y < converted.height(); ++y)
            rows.row(converted.constScanLine(y));
    }
    return true;
}

} // namespace tintra
