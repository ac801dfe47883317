#pragma once

#include "platform/pictures/PictureDecoder.h"

#include <memory>

namespace tintra {

/// Converts 8-bit pixels from the colours a picture is stored in to sRGB, by Little CMS: relative
/// colorimetric with black point compensation, as for single colours. Alpha is kept.
class PictureProfile {
public:
    /// Null where there is nothing to convert: no profile, or one that cannot be read or is for
    /// neither RGB nor grey.
    static std::unique_ptr<PictureProfile> of(ByteView profile, PictureColours colours);

    ~PictureProfile();
    PictureProfile(const PictureProfile&) = delete;
    PictureProfile& operator=(const PictureProfile&) = delete;

    /// In place; pixels not multiplied by their alpha.
    void toSrgb(std::uint8_t* rgba, std::size_t pixelCount) const;

private:
    struct Transform;
    explicit PictureProfile(std::unique_ptr<Transform> transform);

    std::unique_ptr<Transform> transform_;
};

} // namespace tintra
