#pragma once

#include <cstddef>

// How the items of the Library's canvas say which part of which palette they are.

namespace tintra {

inline constexpr std::size_t kPartBits = 16;

/// A part (a swatch, an action) of a palette by its place among the finds.
constexpr std::size_t packed(std::size_t find, std::size_t part) {
    return find << kPartBits | part;
}
constexpr std::size_t findOf(std::size_t index) {
    return index >> kPartBits;
}
constexpr std::size_t partOf(std::size_t index) {
    return index & ((std::size_t{1} << kPartBits) - 1);
}

} // namespace tintra
