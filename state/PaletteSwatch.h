#pragma once

#include "colour/WashColor.h"
#include "platform/Uuid.h"

#include <optional>
#include <string>
#include <vector>

namespace tintra {

/// A swatch of a palette window: its colour, who it is across moves and edits, and the name that
/// the user gave it (none or never empty).
struct PaletteSwatch {
    Uuid id;
    WashColor color;
    std::optional<std::string> name;
    bool operator==(const PaletteSwatch&) const = default;
};

/// The most swatches of a palette.
inline constexpr std::size_t kPaletteCapacity = 256;

/// The two seeds of a harmony.
struct Seeds {
    WashColor first, last;
    bool lastIsExplicit = false; ///< the user chose `last`; otherwise it follows from `first`
    bool operator==(const Seeds&) const = default;
};

} // namespace tintra
