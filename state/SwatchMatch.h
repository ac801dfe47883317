#pragma once

#include "palettes/Swatch.h"
#include "platform/Uuid.h"
#include "state/PaletteSwatch.h"

#include <optional>
#include <span>
#include <vector>

namespace tintra {

/// For each swatch of a palette that was read anew, the identifier of the swatch that it was
/// before, so that links to it stay: first the one of its colour and name, then of its colour, of
/// its name, and at its place. None for a swatch that is new; no identifier twice. Pure; linear.
std::vector<std::optional<Uuid>> matchedSwatches(std::span<const PaletteSwatch> before,
                                                 std::span<const PaletteFile::Swatch> now);

} // namespace tintra
