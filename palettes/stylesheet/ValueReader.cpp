#include "palettes/stylesheet/ValueReader.h"

#include "palettes/Stylesheet.h"
#include "palettes/stylesheet/ColourFunctions.h"
#include "palettes/stylesheet/QuotedStrings.h"
#include "palettes/stylesheet/Unresolvable.h"

#include <algorithm>
#include <string>

namespace tintra::stylesheet {

namespace {

constexpr std::string_view kFunctions = R"(\b(rgba?|hsla?|oklch|oklab|lab|lch|color)\(([^()]*)\))";
constexpr std::string_view kHex =
    R"(#([0-9A-Fa-f]{8}|[0-9A-Fa-f]{6}|[0-9A-Fa-f]{4}|[0-9A-Fa-f]{3})\b)";
// The look-behind keeps out the names of variables, selectors, attribute values and quoted words.
constexpr std::string_view kWords = R"((?<![\w$@#.=\x22'-])([A-Za-z]{3,20})(?![\w-]))";

// The library counts in 32 bits.
constexpr std::size_t kLongestValue = std::size_t{1} << 30U;

icu::UnicodeString unitsOf(std::string_view text) {
    return icu::UnicodeString::fromUTF8({text.data(), static_cast<std::int32_t>(text.size())});
}

std::string group(const icu::UnicodeString& units, const Finder& finder, int number) {
    std::string text;
    units.tempSubStringBetween(finder.begin(number), finder.end(number)).toUTF8String(text);
    return text;
}

bool holds(std::string_view text, char c) {
    return text.find(c) != std::string_view::npos;
}

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// Whether a word may be found: three letters side by side.
bool mayHoldWord(std::string_view value) {
    int letters = 0;
    for (const char c : value)
        if (letters = isLetter(c) ? letters + 1 : 0; letters == 3) return true;
    return false;
}

} // namespace

ValueReader::ValueReader()
    : functions_(kFunctions, LetterCase::ignored), hex_(kHex, LetterCase::matters),
      words_(kWords, LetterCase::matters) {}

const std::vector<WashColor>& ValueReader::colours(std::string_view value) {
    found_.clear();
    colours_.clear();
    if (value.size() > kLongestValue) return colours_;
    std::string kept;
    if (holds(value, '(')) value = kept = withoutUnresolvable(value);
    // Looking before searching saves the search of most values.
    const bool mayCall = holds(value, '('), mayHex = holds(value, '#'),
               mayWord = mayHoldWord(value);
    if (!mayCall && !mayHex && !mayWord) return colours_;
    auto units = unitsOf(value);
    if (mayCall) findFunctions(units);
    // Quoted strings are prose and pictures: what looks like a colour in them seldom is one.
    if (holds(value, '"') || holds(value, '\'')) units = unitsOf(withoutProse(value));
    if (mayHex) findHex(units);
    if (mayWord) findWords(units);
    std::ranges::stable_sort(found_, {}, &Found::position);
    for (const auto& found : found_)
        colours_.push_back(found.colour);
    return colours_;
}

void ValueReader::findFunctions(const icu::UnicodeString& units) {
    functions_.search(units);
    while (functions_.next())
        if (const auto colour =
                functionColour(group(units, functions_, 1), group(units, functions_, 2)))
            found_.push_back({functions_.begin(0), *colour});
}

void ValueReader::findHex(const icu::UnicodeString& units) {
    hex_.search(units);
    while (hex_.next())
        if (const auto colour = hexColour(group(units, hex_, 1)))
            found_.push_back({hex_.begin(0), *colour});
}

void ValueReader::findWords(const icu::UnicodeString& units) {
    words_.search(units);
    while (words_.next())
        if (const auto colour = Stylesheet::named(group(units, words_, 1)))
            found_.push_back({words_.begin(0), *colour});
}

std::optional<WashColor> hexColour(std::string_view digits) {
    if (digits.size() != 4) return WashColor::fromHex(digits);
    std::string doubled;
    for (const char digit : digits)
        doubled.append(2, digit);
    return WashColor::fromHex(doubled);
}

} // namespace tintra::stylesheet
