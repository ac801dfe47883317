#include "palettes/FileNames.h"

#include "platform/Unicode.h"

#include <algorithm>

namespace tintra {

namespace {

/// Linux counts 255 bytes; " 9999" and ".scss" need to go behind.
constexpr std::size_t kLongest = 240;

/// The beginning of at most that many bytes that ends with a whole character.
std::string_view cut(std::string_view text, std::size_t most) {
    if (text.size() <= most) return text;
    while (most > 0 && (static_cast<unsigned char>(text[most]) & 0xC0U) == 0x80U)
        --most;
    return text.substr(0, most);
}

} // namespace

std::optional<std::string> whyUnfit(std::string_view name) {
    if (trimmed(name).empty()) return "A palette needs a name.";
    if (name.find('/') != std::string_view::npos) return "A name cannot hold “/”.";
    if (name.starts_with('.')) return "A name cannot begin with a full stop.";
    if (controlsToSpaces(name) != name) return "A name cannot hold control characters.";
    if (name.size() > kLongest) return "That name is too long.";
    return std::nullopt;
}

std::string fitFileName(std::string_view name) {
    auto text = isValidUtf8(name) ? controlsToSpaces(name)
                                  : controlsToSpaces(utf8FromUtf16(utf16FromUtf8(name)));
    std::ranges::replace(text, '/', '-');
    auto fit = trimmed(text);
    while (fit.starts_with('.'))
        fit = trimmed(fit.substr(1));
    return std::string(trimmed(cut(fit, kLongest)));
}

} // namespace tintra
