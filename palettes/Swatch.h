#pragma once

#include "colour/WashColor.h"

#include <optional>
#include <string>

namespace tintra::PaletteFile {

/// A colour of a palette and the name that the file gives it; no name counts as unnamed.
struct Swatch {
    WashColor color;
    std::optional<std::string> name;
    bool operator==(const Swatch&) const = default;
};

} // namespace tintra::PaletteFile
