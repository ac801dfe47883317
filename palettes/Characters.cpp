#include "palettes/Characters.h"

#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>

namespace tintra {

namespace {

constexpr UChar32 kZeroWidthNonJoiner = 0x200C;
constexpr UChar32 kZeroWidthJoiner = 0x200D;

bool isWordCharacter(UChar32 c) {
    if (c < 0x80)
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               c == '_';
    if (u_isUAlphabetic(c)) return true;
    constexpr std::uint32_t kOthers = U_GC_M_MASK | U_GC_ND_MASK | U_GC_PC_MASK;
    return (U_GET_GC_MASK(c) & kOthers) != 0 || c == kZeroWidthNonJoiner || c == kZeroWidthJoiner;
}

/// The character before `end`; negative at the beginning and for ill-formed bytes.
UChar32 characterBefore(std::string_view text, std::size_t end) {
    // The macro counts in 32 bits; no character is longer than four bytes.
    const auto last = text.substr(0, end);
    const auto tail = last.substr(last.size() - std::min<std::size_t>(last.size(), U8_MAX_LENGTH));
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(tail.data());
    auto at = static_cast<std::int32_t>(tail.size());
    if (at == 0) return U_SENTINEL;
    UChar32 c = U_SENTINEL;
    U8_PREV(bytes, 0, at, c);
    return c;
}

/// The character at `at`, which moves past it; negative at the end and for ill-formed bytes.
UChar32 next(std::string_view text, std::size_t& at) {
    if (at >= text.size()) return U_SENTINEL;
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    UChar32 c = U_SENTINEL;
    U8_NEXT(bytes, at, text.size(), c);
    return c;
}

} // namespace

bool wordCharacterBefore(std::string_view text, std::size_t end) {
    return isWordCharacter(characterBefore(text, end));
}

bool wordCharacterAt(std::string_view text, std::size_t at) {
    return isWordCharacter(next(text, at));
}

std::size_t afterIdentifier(std::string_view text, std::size_t at) {
    for (auto end = at;; at = end) {
        const auto c = next(text, end);
        if (c != '-' && !isWordCharacter(c)) return at;
    }
}

bool whiteSpaceBefore(std::string_view text, std::size_t end) {
    return u_isUWhiteSpace(characterBefore(text, end));
}

std::size_t afterWhiteSpace(std::string_view text, std::size_t at) {
    for (auto end = at;; at = end)
        if (!u_isUWhiteSpace(next(text, end))) return at;
}

} // namespace tintra
