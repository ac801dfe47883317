#include "palettes/stylesheet/ColourFunctions.h"

#include "colour/Clamp.h"
#include "colour/Harmony.h"
#include "palettes/stylesheet/DisplayP3.h"
#include "platform/Number.h"
#include "platform/Unicode.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace tintra::stylesheet {

namespace {

struct Component {
    double value = 0;
    bool isPercentage = false;

    /// The value where 100 % stands for `whole`.
    double over(double whole) const { return isPercentage ? value * whole / 100 : value; }
};

/// Up to three channels and an alpha; `count` tells how many there were.
struct Components {
    std::array<Component, 4> values;
    std::size_t count = 0;

    const Component& operator[](std::size_t at) const { return values[at]; }
    double alpha() const { return count > 3 ? clampedUnit(values[3].over(1)) : 1; }
};

bool isSeparator(char c) {
    return c == ' ' || c == ',' || c == '/' || c == '\t' || c == '\n' || c == '\r' || c == '\f';
}

/// Takes the first piece off the text; empty when there is none.
std::string_view takePiece(std::string_view& text) {
    const auto begin = std::ranges::find_if_not(text, isSeparator);
    const auto end = std::find_if(begin, text.end(), isSeparator);
    const std::string_view piece(begin, end);
    text = {end, text.end()};
    return piece;
}

std::optional<Component> component(std::string_view piece) {
    Component result;
    if (piece.ends_with('%')) {
        result.isPercentage = true;
        piece.remove_suffix(1);
    }
    constexpr std::string_view kDegrees = "deg";
    if (piece.size() > kDegrees.size() &&
        asciiLowerCased(piece.substr(piece.size() - kDegrees.size())) == kDegrees)
        piece.remove_suffix(kDegrees.size());
    const auto value = number(piece);
    if (!value) return std::nullopt;
    result.value = *value;
    return result;
}

std::optional<Components> components(std::string_view arguments) {
    Components all;
    for (auto piece = takePiece(arguments); !piece.empty(); piece = takePiece(arguments)) {
        const auto next = component(piece);
        if (!next) return std::nullopt;
        if (all.count < all.values.size()) all.values[all.count++] = *next;
    }
    if (all.count < 3) return std::nullopt;
    return all;
}

double radians(double degrees) {
    return degrees * std::numbers::pi / 180;
}

WashColor rgb(const Components& c) {
    const auto channel = [](const Component& v) {
        return clampedUnit(v.isPercentage ? v.value / 100 : v.value / 255);
    };
    return {channel(c[0]), channel(c[1]), channel(c[2]), c.alpha()};
}

WashColor hsl(const Components& c) {
    const auto fraction = [](const Component& v) {
        return clampedUnit(v.isPercentage || v.value > 1 ? v.value / 100 : v.value);
    };
    return WashColor::fromRgb(rgbFromHsl(c[0].value, fraction(c[1]), fraction(c[2])), c.alpha());
}

// 100 % of a chroma or of an axis, as CSS Color 4 defines them.
constexpr double kOklabFull = 0.4;
constexpr double kLabAxisFull = 125;
constexpr double kLchChromaFull = 150;

WashColor oklch(const Components& c) {
    return Harmony::color(c[0].over(1), c[1].over(kOklabFull), radians(c[2].value), c.alpha());
}

WashColor oklab(const Components& c) {
    return WashColor::fromOklab({c[0].over(1), c[1].over(kOklabFull), c[2].over(kOklabFull)},
                                c.alpha());
}

WashColor lab(const Components& c) {
    return WashColor::fromRgb(
        rgbFromLabD50({c[0].over(100), c[1].over(kLabAxisFull), c[2].over(kLabAxisFull)}),
        c.alpha());
}

WashColor lch(const Components& c) {
    const double chroma = c[1].over(kLchChromaFull);
    const double hue = radians(c[2].value);
    return WashColor::fromRgb(
        rgbFromLabD50({c[0].over(100), chroma * std::cos(hue), chroma * std::sin(hue)}), c.alpha());
}

std::optional<WashColor> inNamedSpace(std::string_view arguments) {
    const auto space = asciiLowerCased(takePiece(arguments));
    if (space != "srgb" && space != "display-p3") return std::nullopt;
    const auto c = components(arguments);
    if (!c) return std::nullopt;
    const double r = (*c)[0].over(1), g = (*c)[1].over(1), b = (*c)[2].over(1);
    const auto colour = space == "srgb" ? WashColor{r, g, b, c->alpha()} : p3(r, g, b, c->alpha());
    const bool isFinite =
        std::isfinite(colour.r) && std::isfinite(colour.g) && std::isfinite(colour.b);
    return isFinite ? std::optional(colour) : std::nullopt;
}

struct FunctionRow {
    std::string_view name;
    WashColor (*colour)(const Components&);
};
constexpr FunctionRow kFunctions[] = {
    {"rgb", rgb},     {"rgba", rgb},    {"hsl", hsl}, {"hsla", hsl},
    {"oklch", oklch}, {"oklab", oklab}, {"lab", lab}, {"lch", lch},
};

} // namespace

std::optional<WashColor> functionColour(std::string_view function, std::string_view arguments) {
    const auto name = asciiLowerCased(function);
    if (name == "color") return inNamedSpace(arguments);
    for (const auto& row : kFunctions) {
        if (row.name != name) continue;
        const auto numbers = components(arguments);
        return numbers ? std::optional(row.colour(*numbers)) : std::nullopt;
    }
    return std::nullopt;
}

} // namespace tintra::stylesheet
