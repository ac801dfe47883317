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

bool isParenthesis(char c) {
    return c == '(' || c == ')';
}

/// Where the name of an unresolvable function that ends the text begins; npos when none does.
std::size_t unresolvableAtEnd(std::string_view text) {
    auto begin = text.size();
    while (begin > 0 && text.size() - begin <= kLongestName && isNameLetter(text[begin - 1]))
        --begin;
    if (begin == text.size()) return std::string_view::npos;
    const auto name = asciiLowerCased(text.substr(begin));
    const bool known = std::ranges::find(kUnresolvable, name) != kUnresolvable.end();
    return known && !wordCharacterBefore(text, begin) ? begin : std::string_view::npos;
}

/// Takes a value piece by piece and keeps what no unresolvable call holds.
class CallRemover {
public:
    void text(std::string_view piece) { kept_.append(piece); }

    void open() {
        names_.push_back(unresolvableAtEnd(kept_));
        kept_.push_back('(');
    }

    void close() {
        const auto name = names_.empty() ? kNone : names_.back();
        if (!names_.empty()) names_.pop_back();
        if (name != kNone) {
            kept_.resize(name);
            return;
        }
        kept_.push_back(')');
        // The call around it now holds a parenthesis for good.
        if (!names_.empty()) names_.back() = kNone;
    }

    std::string take() { return std::move(kept_); }

private:
    static constexpr auto kNone = std::string_view::npos;

    std::string kept_;
    /// For every open parenthesis where the name before it begins, or none when its call stays.
    std::vector<std::size_t> names_;
};

} // namespace

// One pass with a stack means what it means to replace, until nothing changes,
// (?<![\w-])(?:color-mix|var|...)\([^()]*\) by nothing. That a call goes can neither make nor break
// the name of another one: what stands before it is no letter and no hyphen.
std::string withoutUnresolvable(std::string_view value) {
    CallRemover remover;
    while (!value.empty()) {
        const auto next = std::ranges::find_if(value, isParenthesis);
        remover.text({value.begin(), next});
        if (next == value.end()) break;
        if (*next == '(')
            remover.open();
        else
            remover.close();
        value = {next + 1, value.end()};
    }
    return remover.take();
}

} // namespace tintra::stylesheet
