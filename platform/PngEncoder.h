#pragma once

#include "platform/Bytes.h"
#include "platform/Pixels.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <span>

namespace tintra {

/// Fills row `y` of a picture; called once a row from the top. `row` is as wide as the picture and
/// holds what the call before left there. What it throws passes through the encoder.
using PaintRow = std::function<void(std::size_t y, std::span<Rgba8> row)>;

/// A picture of 8 bits a channel as PNG with the sRGB chunk, kept in memory a row at a time.
/// Nothing for a side of 0 or above a million pixels, or when the encoder fails. Any thread.
std::optional<Bytes> encodePng(PictureSize size, const PaintRow& paint);

} // namespace tintra
