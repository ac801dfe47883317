#pragma once

#include "platform/pictures/PictureDecoder.h"

#include <QByteArray>
#include <QImage>
#include <QImageReader>
#include <memory>

class QIODevice;

namespace tintra {

/// Decodes by Qt's image readers. No application object is needed but for SVG, whose texts want
/// fonts.
class QtDecoder : public PictureDecoder {
public:
    /// Null when the head of the picture cannot be read.
    static std::unique_ptr<QtDecoder> open(const PictureSource& source);

    PictureSize size() const override;
    int bytesPerPixel() const override { return bytesPerPixel_; }
    bool decode(PictureSize least, PixelRows& rows) override;
    bool decodePixel(int column, int row, PixelRows& rows) override;

private:
    QtDecoder(int descriptor, QByteArray format, QByteArray content);

    /// A reader at the start of the picture; it owns its device.
    class Reader;
    bool readHead();
    QSize cheapSize(PictureSize least) const;
    QPoint storedPoint(int column, int row) const;

    int descriptor_;
    QByteArray format_;
    QByteArray content_; ///< of an SVG, made safe; empty for all others
    QSize stored_;       ///< before the orientation is applied
    QImageIOHandler::Transformations orientation_;
    int bytesPerPixel_ = 4;
};

} // namespace tintra
