#pragma once

#include "palettes/Swatch.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// Colours out of CSS, SCSS, Sass and Less. Any text is safe; any thread may read.

namespace tintra::Stylesheet {

/// "css", "scss", "sass", "less".
std::span<const std::string_view> extensions();

/// Whether a text is a stylesheet rather than lines of colours: it holds both braces, or a line
/// begins with the declaration of a custom property or a preprocessor variable.
bool looksLikeStylesheet(std::string_view text);

/// The colours of every declaration in reading order, each identity once. The first declaration
/// that holds a colour names it when it is a variable.
std::vector<PaletteFile::Swatch> read(std::string_view text);

/// A declaration, in the words of its author.
struct Declared {
    std::size_t at;                  ///< where it begins in the text, bytes
    std::optional<std::string> name; ///< of a variable that holds colours, made readable
    std::vector<WashColor> colours;  ///< of its value in reading order, repeats kept; maybe none
};

/// Every declaration of the text in reading order, those without a colour too.
std::vector<Declared> declared(std::string_view text);

/// Whether the Library lists the file as a palette: a regular file of at most a million bytes of
/// UTF-8, not minified, and a variable holds a colour. The verdict is kept with the file's
/// modification date; a file that cannot be read is tried again.
bool isPalette(const std::filesystem::path& file);

/// A variable's name made readable: "--brand-primaryDark" is "Brand Primary Dark".
std::string displayName(std::string_view variableName);

/// The value of a CSS colour keyword in any letter case (CSS Color 4, without transparent and
/// currentcolor).
std::optional<WashColor> named(std::string_view keyword);

/// The colours of a declaration's value, in reading order.
std::vector<WashColor> colours(std::string_view value);

/// One CSS colour: a whole value that is a hex code of 3, 4, 6 or 8 digits, a colour function or a
/// colour keyword.
std::optional<WashColor> cssColour(std::string_view value);

} // namespace tintra::Stylesheet
