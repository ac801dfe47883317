#include "palettes/Stylesheet.h"

#include "palettes/Characters.h"
#include "palettes/Lines.h"
#include "palettes/stylesheet/ColourFunctions.h"
#include "palettes/stylesheet/Comments.h"
#include "palettes/stylesheet/Declarations.h"
#include "palettes/stylesheet/ValueReader.h"
#include "palettes/stylesheet/VariableNames.h"
#include "platform/Unicode.h"

#include <array>
#include <unordered_set>

namespace tintra::Stylesheet {

namespace {

constexpr std::array<std::string_view, 4> kExtensions{"css", "scss", "sass", "less"};

/// The name of the swatches that a property holds; only a variable gives one.
std::optional<std::string> nameOf(std::string_view property) {
    if (!stylesheet::isVariableName(property)) return std::nullopt;
    return displayName(property);
}

} // namespace

std::span<const std::string_view> extensions() {
    return kExtensions;
}

// A scan with the meaning of (?m)^\s*(--|\$|@)[\w-]+\s*: which itself takes quadratic time on empty
// lines.
bool looksLikeStylesheet(std::string_view text) {
    if (text.find('{') != std::string_view::npos && text.find('}') != std::string_view::npos)
        return true;
    for (auto rest = text; !rest.empty();) {
        const auto begin = text.size() - rest.size();
        const auto line = takeLine(rest);
        const auto blanks = afterWhiteSpace(line, 0);
        if (blanks < line.size() && stylesheet::declaresVariableAt(text, begin + blanks))
            return true;
    }
    return false;
}

std::vector<Declared> declared(std::string_view text) {
    const stylesheet::Uncommented source(text);
    stylesheet::ValueReader values;
    std::vector<Declared> all;
    for (const auto& declaration : stylesheet::declarations(source.text())) {
        const auto colon = declaration.text.find(':');
        if (declaration.isSelector || colon == std::string_view::npos) continue;
        const auto at = static_cast<std::size_t>(declaration.text.data() - source.text().data());
        const auto& colours = values.colours(declaration.text.substr(colon + 1));
        all.push_back({source.origin(at), {}, colours});
        if (!colours.empty()) all.back().name = nameOf(trimmed(declaration.text.substr(0, colon)));
    }
    return all;
}

std::vector<PaletteFile::Swatch> read(std::string_view text) {
    std::unordered_set<std::string> seen;
    std::vector<PaletteFile::Swatch> swatches;
    for (const auto& declaration : declared(text))
        for (const auto& colour : declaration.colours)
            if (seen.insert(colour.identity()).second)
                swatches.push_back({colour, declaration.name});
    return swatches;
}

std::vector<WashColor> colours(std::string_view value) {
    return stylesheet::ValueReader().colours(value);
}

std::optional<WashColor> cssColour(std::string_view value) {
    const auto text = trimmed(value);
    if (text.starts_with('#')) {
        const auto digits = text.substr(1);
        return digits.find_first_not_of("0123456789abcdefABCDEF") == std::string_view::npos
                   ? stylesheet::hexColour(digits)
                   : std::nullopt;
    }
    const auto open = text.find('(');
    if (open == std::string_view::npos) return named(text);
    if (text.find_first_of("()", open + 1) != text.size() - 1 || !text.ends_with(')'))
        return std::nullopt;
    return stylesheet::functionColour(text.substr(0, open),
                                      text.substr(open + 1, text.size() - open - 2));
}

} // namespace tintra::Stylesheet
