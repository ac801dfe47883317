#include "palettes/PaletteSearch.h"
#include "palettes/PasteColours.h"
#include "palettes/Stylesheet.h"
#include "platform/Unicode.h"

#include <algorithm>
#include <array>

// A search field takes names as well as colours. The line reader finds a colour anywhere in a text;
// here the text must be nothing else.

namespace tintra {

namespace {

constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kHexDigits = "0123456789abcdef";
constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyz";

bool consistsOf(std::string_view text, std::string_view characters) {
    return text.find_first_not_of(characters) == std::string_view::npos;
}

bool isMarkedHex(std::string_view text) {
    if (text.starts_with('#')) return consistsOf(text.substr(1), kHexDigits);
    return text.starts_with("0x") && (text.size() == 8 || text.size() == 10) &&
           consistsOf(text.substr(2), kHexDigits);
}

/// Six digits without a sign before them are a colour when no word is spelled like that.
bool isBareHex(std::string_view text) {
    return text.size() == 6 && consistsOf(text, kHexDigits) &&
           text.find_first_of(kDigits) != std::string_view::npos;
}

/// "rgb(…)", "new Color(…);" or "[UIColor colorWithRed:…]": a constructor from end to end.
bool isCall(std::string_view text) {
    if (text.ends_with(';')) text.remove_suffix(1);
    if (text.starts_with('[')) return text.ends_with(']');
    const auto open = text.find('(');
    if (open == std::string_view::npos || open == 0 || !text.ends_with(')')) return false;
    auto callee = text.substr(0, open);
    if (callee.starts_with("new ")) callee.remove_prefix(4);
    return std::ranges::all_of(callee, [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_' || c == '-' ||
               c == '.' || c == ':';
    });
}

/// "255, 128, 0" or "hsl 30 100% 50%": numbers, maybe behind the name of their model.
bool isNumbers(std::string_view text) {
    for (const std::string_view model : {"rgba", "rgb", "hsla", "hsl", "oklch"})
        if (text.starts_with(model) &&
            text.find_first_of(kLetters, model.size()) == std::string_view::npos)
            return true;
    return text.find_first_of(kDigits) != std::string_view::npos &&
           consistsOf(text, "0123456789.,;/% \t-");
}

} // namespace

std::optional<WashColor> searchedColour(std::string_view text) {
    const auto whole = asciiLowerCased(trimmed(text));
    if (const auto keyword = Stylesheet::named(whole)) return keyword;
    constexpr std::array kShapes{isMarkedHex, isBareHex, isCall, isNumbers};
    if (std::ranges::none_of(kShapes, [&](auto* isShape) { return isShape(whole); }))
        return std::nullopt;
    const auto pasted = PasteColours::colour(whole);
    return pasted ? pasted : Stylesheet::cssColour(whole);
}

} // namespace tintra
