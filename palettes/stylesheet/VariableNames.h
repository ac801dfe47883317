#pragma once

#include <cstddef>
#include <string_view>

namespace tintra::stylesheet {

/// Where the name of a variable that begins at `at` ends: "--", "$" or "@" and at least one word
/// character or hyphen. `at` when no variable begins there.
std::size_t afterVariableName(std::string_view text, std::size_t at);

/// Whether the whole text names a custom property or a variable of SCSS, Sass or Less.
bool isVariableName(std::string_view text);

/// Whether a variable is declared at `at`: its name, maybe white space, and a colon.
bool declaresVariableAt(std::string_view text, std::size_t at);

} // namespace tintra::stylesheet
