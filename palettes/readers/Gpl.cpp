#include "palettes/readers/Reading.h"
#include "platform/Unicode.h"

#include <algorithm>
#include <array>

// GIMP palette: lines of three decimals 0 to 255 and a name, among header lines and comments.

namespace tintra::PaletteFile {

namespace {

constexpr std::string_view kSignature = "GIMP Palette";
constexpr int kLargest = 255;

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Whether the byte is white space, as far as a single byte can tell.
bool isBlank(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// Takes the white space in front of the text away.
void skipBlanks(std::string_view& text) {
    std::size_t blanks = 0;
    while (blanks < text.size() && isBlank(text[blanks]))
        ++blanks;
    text.remove_prefix(blanks);
    const bool maybeUnicodeSpace = !text.empty() && static_cast<unsigned char>(text[0]) >= 0x80;
    if (maybeUnicodeSpace)
        text.remove_prefix(static_cast<std::size_t>(trimmed(text).data() - text.data()));
}

/// Takes a whole field that is a number 0...255 away, and the white space after it.
std::optional<int> takeByte(std::string_view& text) {
    int value = 0;
    std::size_t digits = 0;
    for (; digits < text.size() && isDigit(text[digits]); ++digits)
        value = std::min(value * 10 + (text[digits] - '0'), kLargest + 1);
    if (digits == 0 || value > kLargest) return std::nullopt;
    auto rest = text.substr(digits);
    skipBlanks(rest);
    if (!rest.empty() && rest.size() == text.size() - digits) return std::nullopt;
    text = rest;
    return value;
}

std::optional<Swatch> swatchOf(std::string_view line) {
    std::array<double, 3> rgb{};
    for (double& component : rgb) {
        const auto byte = takeByte(line);
        if (!byte) return std::nullopt;
        component = *byte / double{kLargest};
    }
    return Swatch{{rgb[0], rgb[1], rgb[2], 1}, keptText(std::string(line))};
}

void readLine(std::string_view line, std::vector<Swatch>& swatches, LeftOut* leftOut) {
    skipBlanks(line);
    if (line.empty() || !isDigit(line.front())) return; // a header line or a comment
    if (auto swatch = swatchOf(line))
        swatches.push_back(std::move(*swatch));
    else
        note(leftOut, "line without three numbers of 0 to 255");
}

} // namespace

std::optional<std::vector<Swatch>> gpl(ByteView data, LeftOut* leftOut) {
    std::string decoded;
    auto text = asText(data);
    if (!text.starts_with(kSignature)) return std::nullopt; // the same bytes in both encodings
    if (!isValidUtf8(text)) text = decoded = utf8FromLatin1(text);

    std::vector<Swatch> swatches;
    for (bool isFirst = true; !text.empty(); isFirst = false) {
        const auto end = std::min(text.find_first_of("\r\n"), text.size());
        if (!isFirst) readLine(text.substr(0, end), swatches, leftOut);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return unlessEmpty(std::move(swatches));
}

} // namespace tintra::PaletteFile
