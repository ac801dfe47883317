#pragma once

#include "platform/Bytes.h"
#include "platform/Pictures.h"

#include <string_view>

// What a decoding module gives to the program. The modules are libraries that are loaded at need
// (platform/pictures/PictureModule.h); they know nothing of the program but this header.

namespace tintra {

/// The colours of decoded pixels where no profile is embedded.
enum class PictureColours { sRGB, displayP3, ituRBT2020 };

/// Takes a decoded picture: `begin` once, then every row from the top.
class PixelRows {
public:
    PixelRows() = default;
    virtual ~PixelRows() = default;
    PixelRows(const PixelRows&) = delete;
    PixelRows& operator=(const PixelRows&) = delete;

    struct Start {
        PictureSize size;   ///< of the rows that follow
        bool opaque = true; ///< every alpha is 255
        ByteView profile;   ///< the embedded ICC profile; empty for none
        PictureColours colours = PictureColours::sRGB;
    };
    virtual void begin(const Start& start) = 0;
    /// `width` pixels of red, green, blue and alpha, not multiplied by it.
    virtual void row(const std::uint8_t* rgba) = 0;
};

/// One picture whose head was read.
class PictureDecoder {
public:
    PictureDecoder() = default;
    virtual ~PictureDecoder() = default;
    PictureDecoder(const PictureDecoder&) = delete;
    PictureDecoder& operator=(const PictureDecoder&) = delete;

    /// As shown, its orientation applied; both sides at least 1.
    virtual PictureSize size() const = 0;
    /// What one decoded pixel takes.
    virtual int bytesPerPixel() const = 0;
    /// Hands over the whole picture at its full size, or at any smaller one of at least `least` on
    /// both sides that is cheaper to have. Answers whether every row was handed over.
    virtual bool decode(PictureSize least, PixelRows& rows) = 0;
    /// Hands over the one pixel as a picture of 1 by 1.
    virtual bool decodePixel(int column, int row, PixelRows& rows) = 0;
};

/// What a module is asked to open.
struct PictureSource {
    int descriptor = -1;   ///< of a file that can be read anywhere; the caller keeps it open
    std::string_view kind; ///< the name in PictureKind
    PictureLimits limits;
};

/// The one function of a module, by the name of kPictureModuleEntry: a decoder that the caller
/// deletes, or null when the head is no picture. Never throws.
using OpenPictureDecoder = PictureDecoder*(const PictureSource& source);
inline constexpr const char* kPictureModuleEntry = "tintraOpenPictureDecoder";

} // namespace tintra
