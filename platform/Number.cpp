#include "platform/Number.h"

#include <array>
#include <charconv>
#include <cmath>

namespace tintra {

namespace {

// The longest fixed text of a double: 309 digits, a sign, a point and the decimals.
constexpr std::size_t kLongest = 400;

} // namespace

void appendFixed(std::string& out, double value, int decimals) {
    std::array<char, kLongest> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value,
                                   std::chars_format::fixed, decimals);
    out.append(text.data(), end.ptr);
}

std::string fixed(double value, int decimals) {
    std::string out;
    appendFixed(out, value, decimals);
    return out;
}

std::string shortest(double value) {
    std::array<char, kLongest> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value);
    return {text.data(), end.ptr};
}

void appendInteger(std::string& out, int value) {
    std::array<char, 16> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value);
    out.append(text.data(), end.ptr);
}

std::optional<double> number(std::string_view text) {
    // from_chars knows "-" but not "+", and reads "inf" and "nan", which no file of ours means.
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-')) return std::nullopt;
    }
    const auto digit = text.find_first_of("0123456789");
    if (digit == std::string_view::npos || digit > 2) return std::nullopt;
    double value = 0;
    const auto end = std::from_chars(text.data(), text.data() + text.size(), value);
    if (end.ec != std::errc() || end.ptr != text.data() + text.size()) return std::nullopt;
    return value;
}

} // namespace tintra
