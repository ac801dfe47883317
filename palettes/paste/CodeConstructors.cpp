#include "colour/Clamp.h"
#include "palettes/PasteColours.h"
#include "palettes/paste/HexScan.h"
#include "palettes/paste/Numbers.h"
#include "palettes/readers/Reading.h"
#include "platform/Unicode.h"

#include <algorithm>
#include <span>

namespace tintra::PasteColours {

namespace {

using paste::Quantity;
using paste::Unit;

/// What a constructor is given. Numbers are fractions when none of the first four exceeds 1, else
/// they count up to a full value that the model defines.
class Arguments {
public:
    explicit Arguments(std::vector<Quantity> values) : values_(std::move(values)) {
        const auto firstFour = std::span(values_).first(std::min<std::size_t>(4, count()));
        areFractions_ = std::ranges::none_of(firstFour, exceedsOne);
    }

    std::size_t count() const { return values_.size(); }
    double fraction(std::size_t at, double full) const {
        const auto& q = values_[at];
        if (q.isPercentage()) return q.value / 100;
        return areFractions_ ? q.value : q.value / full;
    }
    /// An angle as a fraction of a turn.
    double turn(std::size_t at) const {
        const auto& q = values_[at];
        return q.unit == Unit::none || q.isPercentage() ? fraction(at, 360) : q.degrees() / 360;
    }
    /// The alpha at a place, where `full` is opaque as is an absent one.
    double alpha(std::size_t at, double full) const {
        return at < count() ? clampedUnit(fraction(at, full)) : 1;
    }

private:
    static bool exceedsOne(const Quantity& q) { return !q.isPercentage() && q.value > 1; }

    std::vector<Quantity> values_;
    bool areFractions_ = true;
};

constexpr double kByte = 255;

std::optional<WashColor> rgb(const Arguments& a) {
    return WashColor{a.fraction(0, kByte), a.fraction(1, kByte), a.fraction(2, kByte),
                     a.alpha(3, kByte)};
}

std::optional<WashColor> argbNumbers(const Arguments& a) {
    if (a.count() < 4) return rgb(a);
    return WashColor{a.fraction(1, kByte), a.fraction(2, kByte), a.fraction(3, kByte),
                     a.alpha(0, kByte)};
}

std::optional<WashColor> hsb(const Arguments& a) {
    const double saturation = clampedUnit(a.fraction(1, 100));
    const double brightness = clampedUnit(a.fraction(2, 100));
    return WashColor::fromRgb(rgbFromHsb({a.turn(0), saturation, brightness}), a.alpha(3, 1));
}

std::optional<WashColor> cmyk(const Arguments& a) {
    if (a.count() < 4) return std::nullopt;
    Components inks{};
    for (std::size_t ink = 0; ink < inks.size(); ++ink)
        inks[ink] = a.fraction(ink, kByte);
    auto colour = PaletteFile::colourOfInks(inks);
    if (colour) colour->a = a.alpha(4, kByte);
    return colour;
}

/// The part of the code that holds the arguments.
std::string_view argumentText(std::string_view code) {
    for (const char opening : {'(', ':'})
        if (const auto at = code.find(opening); at != std::string_view::npos)
            return code.substr(at + 1);
    return code;
}

std::optional<WashColor> constructorColour(std::string_view lower) {
    const Arguments values(paste::quantities(dividingFractions(argumentText(lower))));
    if (values.count() < 3) return std::nullopt;
    const auto holds = [&](std::string_view keyword) {
        return lower.find(keyword) != std::string_view::npos;
    };
    if (holds("cyan") || holds("cmyk")) return cmyk(values);
    if (holds("hue") || holds("hsb")) return hsb(values);
    return holds("argb") ? argbNumbers(values) : rgb(values);
}

} // namespace

bool looksLikeCode(std::string_view text) {
    return text.find_first_of("([") != std::string_view::npos ||
           asciiLowerCased(text).find("0x") != std::string::npos;
}

std::optional<WashColor> argb(std::string_view text) {
    if (text.size() != 8) return std::nullopt;
    std::string alphaLast(text.substr(2));
    return WashColor::fromHex(alphaLast.append(text.substr(0, 2)));
}

std::optional<WashColor> codeColour(std::string_view in) {
    const auto lower = asciiLowerCased(in);
    if (const auto digits = paste::hexAfter("0x", {8}, lower)) return argb(*digits);
    if (const auto digits = paste::hexAfter("0x", {6}, lower)) return WashColor::fromHex(*digits);
    return looksLikeCode(lower) ? constructorColour(lower) : std::nullopt;
}

} // namespace tintra::PasteColours
