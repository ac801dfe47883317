#pragma once

#include "colour/WashColor.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace tintra {

/// A kind of colour vision.
enum class Vision { typical, protanopia, deuteranopia, tritanopia, achromatopsia };

/// The persisted text, the title and the detail (empty for typical) of a kind; all kinds in menu
/// order.
std::string_view rawValue(Vision vision);
std::string_view title(Vision vision);
std::string_view detail(Vision vision);
std::optional<Vision> vision(std::string_view raw);
std::span<const Vision> allVisions();

/// What the kind makes of linear-light sRGB, applied to a column; nothing for typical.
std::optional<Matrix3> matrix(Vision vision);

/// The colour as an observer of that kind sees it, inside sRGB. Components outside sRGB take part
/// as they are. Typical vision returns the very same colour. Any thread.
WashColor simulate(Vision vision, const WashColor& colour);

/// The same for a whole picture in place: four bytes a pixel, sRGB and an alpha that is neither
/// premultiplied nor changed. Every pixel becomes the bytes of its colour's `simulate`. Bytes after
/// the last whole pixel stay.
void simulatePicture(Vision vision, std::span<std::uint8_t> rgba);

} // namespace tintra
