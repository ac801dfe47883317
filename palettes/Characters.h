#pragma once

#include <cstddef>
#include <string_view>

// Classes of characters as ICU's regular expressions know them, for the readers that scan by hand.
// Positions count bytes of UTF-8 and lie between characters; ill-formed bytes belong to no class.

namespace tintra {

/// Whether a word character (\w: letters, marks, decimal digits, connectors) ends at `end`.
bool wordCharacterBefore(std::string_view text, std::size_t end);

/// Whether a word character begins at `at`.
bool wordCharacterAt(std::string_view text, std::size_t at);

/// Where the run of word characters and hyphens that begins at `at` ends; `at` when there is none.
std::size_t afterIdentifier(std::string_view text, std::size_t at);

/// Whether white space (\s) ends at `end`.
bool whiteSpaceBefore(std::string_view text, std::size_t end);

/// Where the white space that begins at `at` ends.
std::size_t afterWhiteSpace(std::string_view text, std::size_t at);

} // namespace tintra
