#include "palettes/stylesheet/Unresolvable.h"

#include "palettes/Characters.h"
#include "platform/Unicode.h"

#include <algorithm>
#include <array>
#include <vector>

namespace tintra::stylesheet {

namespace {

constexpr std::array<std::string_view, 35> kUnresolvable{
    "color-mix",    "var",        "calc",      "url",         "env",
    "attr",         "darken",     "lighten",   "saturate",    "desaturate",
    "adjust-hue",   "mix",        "tint",      "shade",       "fade",
    "fadein",       "fadeout",    "spin",      "scale-color", "adjust-color",
    "change-color", "complement", "invert",    "grayscale",   "transparentize",
    "opacify",      "contrast",   "lightness", "hue",         "saturation",
    "alpha",        "red",        "green",     "blue",        "color-contrast",
};
constexpr std::size_t kLongestName = 14;

bool isNameLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '-';
}

/// Where the name of an unresolvable function that ends the text begins; npos when none does.
std::size_t unresolvableAtEnd(std::string_view text) {
    auto begin = text.size();
    while (begin > 0 && text.size() - begin <= kLongestName && isNameLetter(text[begin - 1]))
        --begin;
    const auto name = asciiLowerCased(text.substr(begin));
    const bool known =
        std::find(kUnresolvable.begin(), kUnresolvable.end(), name) != kUnresolvable.end();
    return known && !wordCharacterBefore(text, begin) ? begin : std::string_view::npos;
}

/// A parenthesis that is open, and where the name of its function begins in what is kept; npos
/// when the call stays.
struct Open {
    std::size_t name;
};

} // namespace

// One pass with a stack means what it means to replace, until nothing changes,
// (?<![\w-])(?:color-mix|var|...)\([^()]*\) by nothing. That a call goes can neither make nor break
// the name of another one: what stands before it is no letter and no hyphen.
std::string withoutUnresolvable(std::string_view value) {
    std::string kept;
    std::vector<Open> open;
    for (std::size_t at = 0; at < value.size();) {
        const auto next = std::min(value.find_first_of("()", at), value.size());
        kept.append(value.substr(at, next - at));
        at = next + 1;
        if (next == value.size()) break;
        if (value[next] == '(') {
            open.push_back({unresolvableAtEnd(kept)});
            kept.push_back('(');
            continue;
        }
        const auto call = open.empty() ? Open{std::string_view::npos} : open.back();
        if (!open.empty()) open.pop_back();
        if (call.name != std::string_view::npos) {
            kept.resize(call.name);
            continue;
        }
        kept.push_back(')');
        // The call around it now holds a parenthesis for good.
        if (!open.empty()) open.back().name = std::string_view::npos;
    }
    return kept;
}

} // namespace tintra::stylesheet
