#include "palettes/stylesheet/QuotedStrings.h"

#include "colour/Hex.h"

namespace tintra::stylesheet {

namespace {

bool isLineBreak(char c) {
    return c == '\n' || c == '\r' || c == '\f';
}

bool isHexCode(std::string_view text) {
    return text.starts_with('#') && hexNumber(text.substr(1)).has_value();
}

void blank(std::string& text, std::size_t begin, std::size_t end) {
    for (auto at = begin; at < end; ++at)
        if (static_cast<unsigned char>(text[at]) < 0x80) text[at] = ' ';
}

} // namespace

std::size_t afterString(std::string_view text, std::size_t at) {
    const char quote = text[at];
    for (auto end = at + 1; end < text.size() && !isLineBreak(text[end]); ++end) {
        if (text[end] == quote) return end + 1;
        if (text[end] == '\\') ++end;
    }
    return at + 1;
}

std::string withoutProse(std::string_view text) {
    std::string out(text);
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '\\') ++at;
        if (at >= text.size() || (text[at] != '"' && text[at] != '\'')) continue;
        const auto end = afterString(text, at);
        if (end > at + 1 && !isHexCode(text.substr(at + 1, end - at - 2)))
            blank(out, at + 1, end - 1);
        at = end - 1;
    }
    return out;
}

} // namespace tintra::stylesheet
