#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tintra::stylesheet {

/// Where the string that the quote at `at` opens ends, behind its closing quote; nothing closed it
/// before the end of the line: just behind the opening one, which then is no more than a character.
/// A backslash keeps the next character, a line break too, inside the string.
std::size_t afterString(std::string_view text, std::size_t at);

/// The text with blanks for the ASCII characters between quotes, but for a string that is nothing
/// else than a hex code. Every position stays, counted in bytes as well as in UTF-16 units.
std::string withoutProse(std::string_view text);

} // namespace tintra::stylesheet
