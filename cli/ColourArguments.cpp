#include "cli/ColourArguments.h"

#include "palettes/PasteColours.h"
#include "palettes/Stylesheet.h"
#include "platform/Unicode.h"

#include <fmt/format.h>

namespace tintra::cli {

namespace {

/// A long text is told by its beginning, and always as one line.
std::string shown(const std::string& text) {
    constexpr std::size_t kShown = 60;
    auto line = controlsToSpaces(text);
    if (line.size() <= kShown) return fmt::format("“{}”", line);
    auto end = kShown;
    while (end > 0 && (static_cast<unsigned char>(line[end]) & 0xC0U) == 0x80U)
        --end;
    return fmt::format("“{}…”", line.substr(0, end));
}

void addLines(Session& session, std::vector<WashColor>& colours) {
    bool any = false;
    int number = 0;
    for (std::string line; std::getline(session.in(), line);) {
        ++number;
        if (trimmed(line).empty()) continue;
        any = true;
        if (const auto colour = colourOf(line))
            colours.push_back(*colour);
        else
            session.failure(fmt::format("standard input, line {}", number),
                            shown(line) + " is no colour");
    }
    if (!any) session.failure("standard input", "no colours");
}

} // namespace

std::optional<WashColor> colourOf(const std::string& text) {
    const auto pasted = PasteColours::colour(text);
    return pasted ? pasted : Stylesheet::cssColour(text);
}

std::vector<WashColor> colourArguments(Session& session, const std::vector<std::string>& texts) {
    std::vector<WashColor> colours;
    for (const auto& text : texts) {
        if (text == "-")
            addLines(session, colours);
        else if (const auto colour = colourOf(text))
            colours.push_back(*colour);
        else
            session.failure(shown(text), "not a colour");
    }
    return colours;
}

std::optional<WashColor> colourArgument(Session& session, const std::string& text) {
    const auto colours = colourArguments(session, {text});
    if (colours.empty()) return std::nullopt;
    return colours.front();
}

} // namespace tintra::cli
