#include "palettes/Lines.h"

#include <algorithm>

namespace tintra {

namespace {

/// The length of the line break at the beginning of the text; 0 when there is none.
std::size_t lineBreakLength(std::string_view text) {
    for (const std::string_view lineBreak :
         {"\n", "\v", "\f", "\r", "\xC2\x85", "\xE2\x80\xA8", "\xE2\x80\xA9"})
        if (text.starts_with(lineBreak)) return lineBreak.size();
    return 0;
}

} // namespace

std::string_view takeLine(std::string_view& text) {
    constexpr std::string_view kFirstBytes = "\n\v\f\r\xC2\xE2";
    std::size_t end = 0, length = 0;
    while (end = std::min(text.find_first_of(kFirstBytes, end), text.size()), end < text.size()) {
        length = lineBreakLength(text.substr(end));
        if (length > 0) break;
        ++end;
    }
    const auto line = text.substr(0, end);
    text.remove_prefix(end + length);
    return line;
}

} // namespace tintra
