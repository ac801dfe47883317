#include "colour/Hex.h"

#include "colour/WashColor.h"
#include "platform/Unicode.h"

namespace tintra {

namespace {

constexpr std::string_view kDigits = "0123456789ABCDEF";

double fraction(std::uint32_t code, unsigned shift) {
    return static_cast<double>(code >> shift & 0xFFU) / 255;
}

bool dropPrefix(std::string_view& text, std::string_view prefix) {
    const bool found = text.starts_with(prefix);
    if (found) text.remove_prefix(prefix.size());
    return found;
}

} // namespace

void appendHexByte(std::string& text, int byte) {
    text.push_back(kDigits[static_cast<std::size_t>(byte) >> 4U & 0xFU]);
    text.push_back(kDigits[static_cast<std::size_t>(byte) & 0xFU]);
}

std::optional<std::uint32_t> hexNumber(std::string_view digits) {
    if (digits.empty() || digits.size() > 8) return std::nullopt;
    std::uint32_t value = 0;
    for (const char digit : digits) {
        const int number = hexDigit(digit);
        if (number < 0) return std::nullopt;
        value = value << 4U | static_cast<std::uint32_t>(number);
    }
    return value;
}

std::optional<WashColor> WashColor::fromHex(std::string_view hex) {
    auto text = trimmed(hex);
    dropPrefix(text, "#");
    if (!dropPrefix(text, "0x")) dropPrefix(text, "0X");
    std::string doubled;
    if (text.size() == 3) {
        for (const char digit : text)
            doubled.append(2, digit);
        text = doubled;
    }
    if (text.size() != 6 && text.size() != 8) return std::nullopt;
    const auto code = hexNumber(text);
    if (!code) return std::nullopt;
    const bool withAlpha = text.size() == 8;
    const unsigned shift = withAlpha ? 8 : 0;
    return WashColor{fraction(*code, shift + 16), fraction(*code, shift + 8),
                     fraction(*code, shift), withAlpha ? fraction(*code, 0) : 1};
}

} // namespace tintra
