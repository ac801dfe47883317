#include "palettes/paste/HexScan.h"

#include "palettes/Characters.h"

#include <algorithm>

namespace tintra::paste {

namespace {

constexpr std::string_view kHexDigits = "0123456789abcdefABCDEF";

/// The hexadecimal digits at the beginning of the text.
std::string_view leadingDigits(std::string_view text) {
    return text.substr(0, text.find_first_not_of(kHexDigits));
}

} // namespace

std::optional<std::string_view> hexAfter(std::string_view prefix,
                                         std::initializer_list<std::size_t> counts,
                                         std::string_view text) {
    for (auto at = text.find(prefix); at != std::string_view::npos;) {
        const auto begin = at + prefix.size();
        // A count that is less than the run would end inside a word.
        const auto digits = leadingDigits(text.substr(begin));
        const bool fits = std::find(counts.begin(), counts.end(), digits.size()) != counts.end();
        if (fits && !wordCharacterAt(text, begin + digits.size())) return digits;
        at = text.find(prefix, begin);
    }
    return std::nullopt;
}

std::optional<std::string_view> hexWord(std::string_view text) {
    for (auto at = text.find_first_of(kHexDigits); at != std::string_view::npos;) {
        const auto digits = leadingDigits(text.substr(at));
        const auto end = at + digits.size();
        if (digits.size() == 6 && !wordCharacterBefore(text, at) && !wordCharacterAt(text, end))
            return digits;
        at = text.find_first_of(kHexDigits, end);
    }
    return std::nullopt;
}

} // namespace tintra::paste
