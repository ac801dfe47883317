#pragma once

#include "platform/Bytes.h"

#include <optional>
#include <string_view>

namespace tintra {

/// A kind of picture file that is read.
struct PictureKind {
    std::string_view name;   ///< "png", as the decoding module knows it
    std::string_view module; ///< the module that decodes it, "pictures" or "heif"
};

/// Bytes from the start of a file that are enough to tell its kind.
inline constexpr std::size_t kPictureHeadSize = 4096;

/// The kind that the first bytes of a file show, whatever its name; nothing for any other. Text
/// that begins like markup counts as SVG.
std::optional<PictureKind> pictureKind(ByteView head);

} // namespace tintra
