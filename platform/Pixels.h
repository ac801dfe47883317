#pragma once

#include <cstdint>

namespace tintra {

/// Whole pixels.
struct PictureSize {
    int width = 0, height = 0;
    bool operator==(const PictureSize&) const = default;
};

/// A pixel of a picture: sRGB, alpha not multiplied in. All zero is transparent.
struct Rgba8 {
    std::uint8_t r = 0, g = 0, b = 0, a = 0;
    bool operator==(const Rgba8&) const = default;
};

} // namespace tintra
