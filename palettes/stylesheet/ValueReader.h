#pragma once

#include "colour/WashColor.h"
#include "palettes/stylesheet/Patterns.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace tintra::stylesheet {

/// Finds the colours in the values of declarations. It belongs to one thread and is kept while a
/// stylesheet is read, since its finders cost more to set up than a value to search.
class ValueReader {
public:
    ValueReader();

    /// The colours of a value in reading order, valid until the next call: colour functions, hex
    /// codes of 8, 6, 4 or 3 digits, and colour keywords. In a quoted string only functions count,
    /// unless the string is one hex code. Calls that cannot be resolved yield nothing.
    const std::vector<WashColor>& colours(std::string_view value);

private:
    struct Found {
        std::int32_t position;
        WashColor colour;
    };

    void findFunctions(const icu::UnicodeString& units);
    void findHex(const icu::UnicodeString& units);
    void findWords(const icu::UnicodeString& units);

    Finder functions_, hex_, words_;
    std::vector<Found> found_;
    std::vector<WashColor> colours_;
};

/// The colour of 8, 6, 4 (RGBA) or 3 hexadecimal digits without the hash sign.
std::optional<WashColor> hexColour(std::string_view digits);

} // namespace tintra::stylesheet
