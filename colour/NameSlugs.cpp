#include "colour/ColorFormat.h"
#include "platform/Unicode.h"

#include <algorithm>
#include <array>

namespace tintra {

namespace {

// U+0027, U+2018, U+2019 and U+02BC: all are typed inside words such as "Robin's".
constexpr std::array<std::string_view, 4> kApostrophes{"'", "\u2018", "\u2019", "\u02BC"};

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isSlugCharacter(char c) {
    return isDigit(c) || (c >= 'a' && c <= 'z');
}

std::size_t apostropheAt(std::string_view text) {
    for (const auto apostrophe : kApostrophes)
        if (text.starts_with(apostrophe)) return apostrophe.size();
    return 0;
}

/// The words of a text without marks and in lower case, joined by single hyphens.
std::string hyphenated(std::string_view text) {
    std::string slug;
    bool gap = false;
    while (!text.empty()) {
        if (const auto length = apostropheAt(text); length > 0) {
            text.remove_prefix(length);
            continue;
        }
        const char c = text.front();
        text.remove_prefix(1);
        gap = gap || !isSlugCharacter(c);
        if (!isSlugCharacter(c)) continue;
        if (gap && !slug.empty()) slug.push_back('-');
        gap = false;
        slug.push_back(c);
    }
    return slug;
}

} // namespace

std::string cssSlug(std::string_view name, LeadingDigit leadingDigitAllowed) {
    // Marks go first: they would split a word that is written with combining characters.
    auto slug = hyphenated(lowerCased(withoutMarks(name)));
    if (slug.empty()) return "colour";
    if (leadingDigitAllowed == LeadingDigit::notAllowed && isDigit(slug.front()))
        slug.insert(0, "c-");
    return slug;
}

bool isIdentifier(std::string_view text, LeadingDigit leadingDigitAllowed) {
    if (text.empty() || text.front() == '-' || text.back() == '-') return false;
    if (leadingDigitAllowed == LeadingDigit::notAllowed && isDigit(text.front())) return false;
    return text.find("--") == std::string_view::npos &&
           std::all_of(text.begin(), text.end(),
                       [](char c) { return c == '-' || isSlugCharacter(c); });
}

std::string androidName(std::string_view name) {
    return otherThanWordsTo('_', lowerCased(name));
}

} // namespace tintra
