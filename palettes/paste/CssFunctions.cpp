#include "palettes/paste/CssFunctions.h"

#include "colour/Clamp.h"
#include "colour/Harmony.h"
#include "palettes/Characters.h"
#include "palettes/PasteColours.h"
#include "palettes/stylesheet/ColourFunctions.h"

#include <algorithm>
#include <numbers>

namespace tintra::paste {

namespace {

bool touches(std::string_view text, std::size_t begin, std::size_t end) {
    const bool before = begin > 0 && (text[begin - 1] == '-' || wordCharacterBefore(text, begin));
    return before || text.substr(end).starts_with('-') || wordCharacterAt(text, end);
}

double alphaOf(const std::vector<Quantity>& values) {
    return values.size() > 3 ? clampedUnit(values[3].over(1)) : 1;
}

/// A fraction written as a percentage, with its sign or as a number above 1, or as it is.
double fractionOf(const Quantity& value) {
    return value.isPercentage() || value.value > 1 ? value.value / 100 : value.value;
}

WashColor hsl(const std::vector<Quantity>& v) {
    return WashColor::fromRgb(
        rgbFromHsl(v[0].degrees(), clampedUnit(fractionOf(v[1])), clampedUnit(fractionOf(v[2]))),
        alphaOf(v));
}

WashColor oklch(const std::vector<Quantity>& v) {
    constexpr double kFullChroma = 0.4; // what 100 % stands for in CSS Color 4
    const double hue = v[2].degrees() * std::numbers::pi / 180;
    return Harmony::color(fractionOf(v[0]), v[1].over(kFullChroma), hue, alphaOf(v));
}

struct FunctionRow {
    std::string_view keyword;
    WashColor (*colour)(const std::vector<Quantity>&);
};
// The longer keyword of a pair comes first, and the other only when that has no colour.
constexpr FunctionRow kLoose[] = {
    {"rgba", rgbColour}, {"rgb", rgbColour}, {"hsla", hsl}, {"hsl", hsl}, {"oklch", oklch},
};
constexpr std::string_view kStrict[] = {"lab", "lch", "oklab", "color"};

/// A function as stylesheets write it, wherever its keyword stands in the line.
std::optional<WashColor> strictFunction(std::string_view keyword, std::string_view line) {
    for (auto rest = line;;) {
        const auto behind = afterKeyword(keyword, rest);
        if (!behind) return std::nullopt;
        rest.remove_prefix(*behind);
        const auto close = rest.starts_with('(') ? rest.find_first_of("()", 1) : rest.size();
        if (close >= rest.size() || rest[close] != ')') continue;
        if (const auto colour = stylesheet::functionColour(keyword, rest.substr(1, close - 1)))
            return colour;
    }
}

} // namespace

WashColor rgbColour(const std::vector<Quantity>& v) {
    const auto isByte = [](const Quantity& q) { return !q.isPercentage() && q.value > 1; };
    const double divisor = std::any_of(v.begin(), v.begin() + 3, isByte) ? 255 : 1;
    const auto channel = [&](const Quantity& q) {
        return clampedUnit(q.isPercentage() ? q.value / 100 : q.value / divisor);
    };
    return {channel(v[0]), channel(v[1]), channel(v[2]), alphaOf(v)};
}

std::optional<std::size_t> afterKeyword(std::string_view keyword, std::string_view line) {
    for (auto at = line.find(keyword); at != std::string_view::npos;
         at = line.find(keyword, at + 1))
        if (!touches(line, at, at + keyword.size())) return at + keyword.size();
    return std::nullopt;
}

std::vector<Quantity> arguments(std::string_view keyword, std::string_view line) {
    const auto behind = afterKeyword(keyword, line);
    if (!behind) return {};
    auto text = line.substr(afterWhiteSpace(line, *behind));
    if (text.starts_with('(')) text = text.substr(0, text.find(')'));
    return quantities(text);
}

std::optional<WashColor> cssFunction(std::string_view line) {
    for (const auto& row : kLoose) {
        const auto values = arguments(row.keyword, line);
        if (values.size() >= 3) return row.colour(values);
    }
    for (const auto keyword : kStrict)
        if (const auto colour = strictFunction(keyword, line)) return colour;
    return std::nullopt;
}

} // namespace tintra::paste

namespace tintra::PasteColours {

std::optional<std::vector<double>> numbers(std::string_view afterKeyword, std::string_view in) {
    const auto behind = paste::afterKeyword(afterKeyword, in);
    if (!behind) return std::nullopt;
    return allNumbers(in.substr(*behind));
}

} // namespace tintra::PasteColours
