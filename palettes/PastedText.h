#pragma once

#include "palettes/Swatch.h"

#include <string_view>
#include <vector>

namespace tintra {

/// Colours of pasted or dropped text, with the names that a stylesheet's variables give them. Any
/// thread.
std::vector<PaletteFile::Swatch> coloursIn(std::string_view text);

} // namespace tintra
