#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tintra {

/// Appends 0...255 as two upper-case hexadecimal digits.
void appendHexByte(std::string& text, int byte);

/// 0...15 for a hexadecimal digit of either case, else -1.
int hexDigit(char digit);

/// The number that the whole text is in hexadecimal: 1 to 8 digits and nothing else.
std::optional<std::uint32_t> hexNumber(std::string_view digits);

} // namespace tintra
