#pragma once

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tintra {

/// An identifier of 128 bits. All zero is the identifier of nothing.
struct Uuid {
    std::array<std::uint8_t, 16> bytes{};

    /// Eight, four, four, four and twelve upper-case hexadecimal digits, joined by hyphens.
    std::string text() const;
    /// The same text with digits of either case; nothing for any other.
    static std::optional<Uuid> fromText(std::string_view text);

    auto operator<=>(const Uuid&) const = default;
};

} // namespace tintra

template <>
struct std::hash<tintra::Uuid> {
    std::size_t operator()(const tintra::Uuid& id) const noexcept {
        std::size_t value = 0;
        std::memcpy(&value, id.bytes.data(), sizeof value);
        return value;
    }
};
