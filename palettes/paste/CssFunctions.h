#pragma once

#include "colour/WashColor.h"
#include "palettes/paste/Numbers.h"

#include <optional>
#include <string_view>
#include <vector>

namespace tintra::paste {

/// Where the text behind the first place of the keyword begins at which no letter, digit, "_" or
/// "-" touches it; nothing when there is no such place.
std::optional<std::size_t> afterKeyword(std::string_view keyword, std::string_view line);

/// The numbers behind the keyword: of the parentheses where one opens there, else all that follow.
/// Empty when the keyword is absent.
std::vector<Quantity> arguments(std::string_view keyword, std::string_view line);

/// Three or four numbers as red, green, blue and maybe alpha. Channels that all lie in 0...1 are
/// fractions, whatever rgb() means to a browser, since people paste what other programs print; else
/// they count to 255. Percentages are percentages.
WashColor rgbColour(const std::vector<Quantity>& values);

/// The colour of a CSS function in a line in lower case. rgb, hsl and oklch may lack parentheses
/// and use any unit of angle; lab, lch, oklab and color are read as in a stylesheet.
std::optional<WashColor> cssFunction(std::string_view line);

} // namespace tintra::paste
