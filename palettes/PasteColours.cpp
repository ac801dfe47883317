#include "palettes/PasteColours.h"

#include "palettes/Lines.h"
#include "palettes/Stylesheet.h"
#include "palettes/paste/CssFunctions.h"
#include "palettes/paste/HexScan.h"
#include "palettes/paste/Numbers.h"
#include "platform/Unicode.h"

#include <algorithm>

namespace tintra::PasteColours {

namespace {

std::optional<WashColor> hexCode(std::string_view line) {
    // A colour resource of Android counts alpha first.
    if (line.find("<color") != std::string_view::npos)
        if (const auto digits = paste::hexAfter("#", {8}, line)) return argb(*digits);
    const auto digits = paste::hexAfter("#", {8, 6, 3}, line);
    return digits ? WashColor::fromHex(*digits) : std::nullopt;
}

std::optional<WashColor> bareHex(std::string_view line) {
    const auto digits = paste::hexWord(line);
    return digits ? WashColor::fromHex(*digits) : std::nullopt;
}

std::optional<WashColor> bareNumbers(std::string_view line) {
    if (looksLikeCode(line)) return std::nullopt;
    const auto values = paste::quantities(line);
    const auto isChannel = [](const auto& q) { return q.value >= 0 && q.value <= 255; };
    if (values.size() != 3 || !std::ranges::all_of(values, isChannel)) return std::nullopt;
    return paste::rgbColour(values);
}

/// The ways to read a line in lower case; the first that yields a colour wins.
constexpr std::optional<WashColor> (*kWays[])(std::string_view) = {
    hexCode, paste::cssFunction, codeColour, bareHex, bareNumbers, Stylesheet::named,
};

} // namespace

std::optional<WashColor> colour(std::string_view in) {
    const auto line = asciiLowerCased(trimmed(in));
    for (const auto way : kWays)
        if (const auto found = way(line)) return found;
    return std::nullopt;
}

std::vector<WashColor> parse(std::string_view text) {
    std::vector<WashColor> colours;
    while (!text.empty())
        if (const auto found = colour(takeLine(text))) colours.push_back(*found);
    return colours;
}

} // namespace tintra::PasteColours
