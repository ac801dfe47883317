#include "state/SwatchIdentity.h"

#include <algorithm>

namespace tintra {

std::uint32_t identityNumber(const WashColor& color) {
    const auto bytes = color.srgb255();
    std::uint32_t number = 0;
    for (const int byte : {bytes.r, bytes.g, bytes.b, byteOf(color.a)})
        number = number << 8U | static_cast<std::uint32_t>(byte);
    return number;
}

std::optional<std::size_t> indexOf(const WashColor& color, std::span<const PaletteSwatch> among) {
    const auto wanted = identityNumber(color);
    const auto found = std::ranges::find_if(
        among, [&](const PaletteSwatch& swatch) { return identityNumber(swatch.color) == wanted; });
    if (found == among.end()) return std::nullopt;
    return static_cast<std::size_t>(found - among.begin());
}

} // namespace tintra
