#pragma once

#include "colour/WashColor.h"

#include <string>
#include <string_view>

// What notices say and how long they stay. Pure.

namespace tintra {

/// How long a notice of one send or refusal is shown, one that counts a batch, and one that
/// explains; seconds.
inline constexpr double kBriefly = 1.4;
inline constexpr double kForCounts = 2.8;
inline constexpr double kForExplaining = 2.5;

/// A colour as notices show it: "#RRGGBB", with the alpha byte behind it unless it is opaque.
std::string noticeCode(const WashColor& color);

/// "The palette is full at 256".
std::string paletteFullText(std::size_t held);

/// What a batch of adds reports; `offered` = `added` + `skipped` + those that found no room. Full
/// wins over counts.
std::string batchText(std::size_t offered, std::size_t added, std::size_t skipped,
                      std::size_t held);

/// "1 colour", "3 colours": the count and the noun in its number.
std::string counted(std::size_t count, std::string_view one, std::string_view many);

} // namespace tintra
