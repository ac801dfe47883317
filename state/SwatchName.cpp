#include "state/SwatchName.h"

#include "platform/Unicode.h"

namespace tintra {
namespace {

/// The first code points of well-formed UTF-8.
std::string_view beginning(std::string_view text, std::size_t characters) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool begins = (static_cast<unsigned char>(text[i]) & 0xC0U) != 0x80U;
        if (begins && characters-- == 0) return text.substr(0, i);
    }
    return text;
}

} // namespace

std::optional<std::string> swatchNameFrom(std::string_view text) {
    const auto plain =
        controlsToSpaces(isValidUtf8(text) ? text : utf8FromUtf16(utf16FromUtf8(text)));
    const auto name = trimmed(beginning(trimmed(plain), kLongestName));
    return name.empty() ? std::nullopt : std::optional(std::string(name));
}

} // namespace tintra
