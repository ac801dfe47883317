#include "platform/Uuid.h"

#include <cctype>

namespace tintra {

namespace {

constexpr std::string_view kDigits = "0123456789ABCDEF";
constexpr std::size_t kLength = 36;

bool hyphenAt(std::size_t place) {
    return place == 8 || place == 13 || place == 18 || place == 23;
}

std::optional<std::uint8_t> digitValue(char digit) {
    const auto upper = static_cast<char>(std::toupper(static_cast<unsigned char>(digit)));
    const auto found = kDigits.find(upper);
    if (found == std::string_view::npos) return std::nullopt;
    return static_cast<std::uint8_t>(found);
}

} // namespace

std::string Uuid::text() const {
    std::string text;
    text.reserve(kLength);
    for (const auto byte : bytes) {
        if (hyphenAt(text.size())) text += '-';
        text += kDigits[byte >> 4U];
        text += kDigits[byte & 15U];
    }
    return text;
}

std::optional<Uuid> Uuid::fromText(std::string_view text) {
    if (text.size() != kLength) return std::nullopt;
    Uuid id;
    std::size_t place = 0;
    for (auto& byte : id.bytes) {
        if (hyphenAt(place) && text[place++] != '-') return std::nullopt;
        const auto high = digitValue(text[place]);
        const auto low = digitValue(text[place + 1]);
        if (!high || !low) return std::nullopt;
        byte = static_cast<std::uint8_t>(*high << 4U | *low);
        place += 2;
    }
    return id;
}

} // namespace tintra
