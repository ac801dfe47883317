#pragma once

#include "colour/FormatOptions.h"
#include "colour/WashColor.h"

#include <string>
#include <string_view>

// What the writers of palette files share: names made harmless, and hex codes.

namespace tintra {

/// The text as UTF-8 in any case: ill-formed bytes become U+FFFD.
std::string wellFormed(std::string_view text);

/// `wellFormed`, and on one line: control characters and line separators become blanks. Nothing in
/// it is forbidden in XML 1.0 (U+FFFE and U+FFFF become U+FFFD).
std::string singleLine(std::string_view text);

/// The text with "&", "<", ">" and double quotes as entities.
std::string entityEscaped(std::string_view text);

/// A name as text or attribute value of XML, HTML and SVG.
std::string markupText(std::string_view name);

/// Six hexadecimal digits in the selected RGB space, eight for a translucent colour; the letters'
/// case and the hash sign as the options say.
std::string hexCode(const WashColor& colour, const FormatOptions& options);

/// `hexCode` with a hash sign whatever the options say.
std::string hashedHexCode(const WashColor& colour, const FormatOptions& options);

/// 0...255 in the selected RGB space.
Rgb255 selectedRgb255(const WashColor& colour);

/// The inks in whole percent joined by ", ": cyan, magenta, yellow, black.
std::string inkPercents(const WashColor& colour);

/// The alpha 0...1 with two decimals.
std::string alphaText(const WashColor& colour);

} // namespace tintra
