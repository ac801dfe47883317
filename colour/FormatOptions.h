#pragma once

#include <string>
#include <string_view>

namespace tintra {

/// How the user wants numbers and CSS written in code.
struct FormatOptions {
    int decimals = 3;              ///< digits after the point of 0...1 numbers; used as 1 to 5
    bool useFractions = false;     ///< channels as a division by 255 instead of a decimal
    bool removeWhitespace = false; ///< no blank after a comma
    bool cssUppercase = false;     ///< CSS in upper case
    bool cssPrefixHash = true;     ///< "#" before a CSS hex code

    /// One channel number 0...1 as text: with fractions "127.5/" and the denominator's text, else
    /// a decimal.
    std::string number(double value, std::string_view over) const;

    /// The number as a decimal whether or not fractions are wanted: alpha is never a fraction.
    std::string decimal(double value) const;

    bool operator==(const FormatOptions&) const = default;
};

} // namespace tintra
