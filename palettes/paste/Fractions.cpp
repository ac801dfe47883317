#include "palettes/Characters.h"
#include "palettes/PasteColours.h"
#include "palettes/paste/Numbers.h"
#include "platform/Number.h"

namespace tintra::PasteColours {

namespace {

bool isDigit(std::string_view text, std::size_t at) {
    return at < text.size() && text[at] >= '0' && text[at] <= '9';
}

/// Where a division by 255, which "/" may begin at `at` after white space, ends; nothing when there
/// is none. An "f" behind it, as OpenGL writes its numbers, belongs to it.
std::optional<std::size_t> afterDivision(std::string_view text, std::size_t at) {
    at = afterWhiteSpace(text, at);
    if (at >= text.size() || text[at] != '/') return std::nullopt;
    at = afterWhiteSpace(text, at + 1);
    if (!text.substr(at).starts_with("255")) return std::nullopt;
    at += 3;
    for (const std::string_view rest : {".0f", ".0F", "f", "F", ".0", ""})
        if (text.substr(at).starts_with(rest) && !wordCharacterAt(text, at + rest.size()))
            return at + rest.size();
    return std::nullopt;
}

// Enough for every value that a channel of 8 bits or a double in 0...1 can be told apart by.
constexpr int kDecimals = 17;

} // namespace

// A scan with the meaning of (-?\d+(?:\.\d+)?)\s*/\s*255(?:\.0)?\b
std::string dividingFractions(std::string_view text) {
    std::string out;
    for (std::size_t at = 0; at < text.size();) {
        const auto numerator = text[at] == '.' ? std::nullopt : paste::numberAt(text, at);
        const auto end = numerator ? afterDivision(text, numerator->end) : std::nullopt;
        if (end) {
            appendFixed(out, numerator->value / 255, kDecimals);
            at = *end;
            continue;
        }
        // No place inside these digits can do better; one after the point might.
        do
            out.push_back(text[at++]);
        while (isDigit(text, at - 1) && isDigit(text, at));
    }
    return out;
}

} // namespace tintra::PasteColours
