#pragma once

#include "platform/Bytes.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <string>
#include <string_view>

namespace tintra::test {

/// A picture in the bytes of a file; lossy formats at their best.
inline Bytes encoded(const QImage& image, const char* format) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setQuality(100);
    if (!writer.write(image)) return {};
    const auto view = std::as_bytes(
        std::span(buffer.data().constData(), static_cast<std::size_t>(buffer.data().size())));
    return {view.begin(), view.end()};
}

/// 64 by 32: red on the left half, blue on the right.
inline QImage halves(QImage::Format format = QImage::Format_RGB32) {
    QImage image(64, 32, QImage::Format_RGB32);
    image.fill(Qt::red);
    for (int y = 0; y < 32; ++y)
        for (int x = 32; x < 64; ++x)
            image.setPixel(x, y, qRgb(0, 0, 255));
    return image.convertToFormat(format);
}

inline Bytes fromText(std::string_view text) {
    const auto view = asBytes(text);
    return {view.begin(), view.end()};
}

/// Data written as base64 in a test.
inline Bytes fromBase64(const char* text) {
    const auto bytes = QByteArray::fromBase64(text);
    return fromText(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

} // namespace tintra::test
