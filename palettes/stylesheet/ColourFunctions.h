#pragma once

#include "colour/WashColor.h"

#include <optional>
#include <string_view>

namespace tintra::stylesheet {

/// The colour of a CSS function: rgb, rgba, hsl, hsla, oklch, oklab, lab, lch or color (with srgb
/// or display-p3), in any letter case, and the text between its parentheses. Numbers stand between
/// blanks, commas and slashes; they carry "%", "deg" or no unit. Nothing for another function,
/// fewer than three numbers, and any piece that is no such number. Channels of `color` may lie
/// outside 0...1, all others are clamped.
std::optional<WashColor> functionColour(std::string_view function, std::string_view arguments);

} // namespace tintra::stylesheet
