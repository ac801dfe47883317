#pragma once

#include "platform/desktop/heif/HeifFile.h"
#include "platform/pictures/PictureDecoder.h"

namespace tintra {

/// Decodes AVIF and HEIC by libheif, which applies the orientation.
class HeifDecoder : public PictureDecoder {
public:
    /// Null when the head of the picture cannot be read.
    static std::unique_ptr<HeifDecoder> open(const PictureSource& source);

    PictureSize size() const override;
    int bytesPerPixel() const override;
    bool decode(PictureSize least, PixelRows& rows) override;
    bool decodePixel(int column, int row, PixelRows& rows) override;

private:
    explicit HeifDecoder(int descriptor) : file_(descriptor), handle_(file_.primaryImage()) {}

    HeifFile file_;
    HeifOwner<heif_image_handle> handle_;
};

} // namespace tintra
