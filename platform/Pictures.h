#pragma once

#include "platform/Bytes.h"
#include "platform/Pixels.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace tintra {

/// How the colour of a translucent pixel is stored: multiplied by its alpha, or as it is.
enum class AlphaForm { premultiplied, straight };

/// Pixels in sRGB, row by row from the top left: red, green, blue and alpha, a byte each.
struct PixelBuffer {
    PictureSize size;
    std::vector<std::uint8_t> rgba;
};

/// Why a picture gave nothing.
struct PictureError {
    enum class Kind {
        file,     ///< the file itself cannot be read
        content,  ///< its content is no picture that can be read
        tooLarge, ///< the picture exceeds PictureLimits
        service,  ///< what reads such pictures is not installed
    };
    Kind kind = Kind::content;
    std::string why; ///< a short English phrase, such as "No such file or directory"
};

/// What a picture may cost.
struct PictureLimits {
    /// Of the pixels at full size, at the depth in which they are decoded, at least 4 bytes each. A
    /// picture that claims more is refused before memory is taken, also where a reduced one would
    /// take less.
    std::uint64_t decodedBytes = std::uint64_t{512} << 20U;
};

/// An open picture: PNG, JPEG, WebP, TIFF, GIF, BMP, SVG, AVIF or HEIC, told by its content. Of an
/// animation it is the first frame. Its colours are converted from the embedded profile to sRGB.
/// The content is read anew by every call; one thread at a time may use a picture.
class Picture {
public:
    Picture() : identity_(nextIdentity()) {}
    virtual ~Picture() = default;
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    /// As the picture is shown, its orientation applied; both sides at least 1.
    virtual PictureSize size() const = 0;

    /// The picture reduced to at most `longerSide` (from 1) pixels on its longer side, never
    /// enlarged (so a side beyond its own gives it whole): both sides scaled alike, fractions cut
    /// off, at least 1. Every pixel is the mean of the area it covers, colours weighted by their
    /// alpha.
    virtual std::variant<PixelBuffer, PictureError> reduced(int longerSide,
                                                            AlphaForm form) const = 0;

    /// The pixel in a column and a row of the full size; an error outside of it.
    virtual std::variant<Rgba8, PictureError> pixel(int column, int row) const = 0;

    /// Different for every picture opened in this run; never 0.
    std::uint64_t identity() const { return identity_; }

private:
    static std::uint64_t nextIdentity();

    std::uint64_t identity_;
};

using OpenedPicture = std::variant<std::shared_ptr<const Picture>, PictureError>;

/// Opens a picture file. What decodes pictures is loaded when the first one is opened. The file
/// stays open, so the picture stays the same when the file is replaced. Any thread.
OpenedPicture openPicture(const std::filesystem::path& file, const PictureLimits& limits = {});

/// Opens a picture from the content of a file.
OpenedPicture openPicture(ByteView content, const PictureLimits& limits = {});

/// The size to which `reduced` brings a picture of a size.
PictureSize reducedSize(PictureSize full, int longerSide);

} // namespace tintra
