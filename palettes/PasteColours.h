#pragma once

#include "colour/WashColor.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Colours out of lines of text that a person types or pastes: hex, CSS functions, constructors of
// programming languages, bare numbers, CSS colour names. Any bytes are safe; pure, any thread.

namespace tintra::PasteColours {

/// The colours of the lines that hold one, in order, duplicates kept.
std::vector<WashColor> parse(std::string_view text);

/// The colour of one line; nothing when it holds none.
std::optional<WashColor> colour(std::string_view in);

/// Whether the text holds "(", "[" or "0x" in any case.
bool looksLikeCode(std::string_view text);

/// A constructor of a programming language.
std::optional<WashColor> codeColour(std::string_view in);

/// Eight hexadecimal digits as alpha, red, green, blue.
std::optional<WashColor> argb(std::string_view text);

/// The numbers after the first place of the keyword that no letter, digit, "_" or "-" touches;
/// nothing when there is no such place. Integers and decimals, without exponents.
std::optional<std::vector<double>> numbers(std::string_view afterKeyword, std::string_view in);

/// Every number of the text, in order.
std::vector<double> allNumbers(std::string_view in);

/// Every division of a number by 255 replaced by its value.
std::string dividingFractions(std::string_view text);

} // namespace tintra::PasteColours
