#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tintra {

/// Appends 0...255 as two upper-case hexadecimal digits.
void appendHexByte(std::string& text, int byte);

/// `hexDigit` of every byte: lists of colours are long, and digits too random to predict.
inline constexpr auto kHexDigits = [] {
    std::array<std::int8_t, 256> values{};
    values.fill(-1);
    for (std::size_t i = 0; i < 10; ++i)
        values['0' + i] = static_cast<std::int8_t>(i);
    for (std::size_t i = 10; i < 16; ++i)
        values['a' + i - 10] = values['A' + i - 10] = static_cast<std::int8_t>(i);
    return values;
}();

/// 0...15 for a hexadecimal digit of either case, else -1.
constexpr int hexDigit(char digit) {
    return kHexDigits[static_cast<unsigned char>(digit)];
}

/// The number that the whole text is in hexadecimal: 1 to 8 digits and nothing else.
std::optional<std::uint32_t> hexNumber(std::string_view digits);

} // namespace tintra
