#pragma once

#include "state/PaletteSwatch.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace tintra {

/// A colour's identity as a number: equal for two colours when `WashColor::identity` is.
std::uint32_t identityNumber(const WashColor& color);

/// The first swatch that is the same as the colour; nothing when there is none.
std::optional<std::size_t> indexOf(const WashColor& color, std::span<const PaletteSwatch> among);

} // namespace tintra
