#pragma once

#include "palettes/Swatch.h"

#include <filesystem>
#include <string_view>
#include <vector>

namespace tintra {

/// The one system palette that is made by rule.
inline constexpr std::string_view kWebSafeColours = "Web Safe Colours";

/// The 216 colours whose components are multiples of 51, as "Web Safe Colours" lists them: from
/// black to white, blue changing fastest. Unnamed.
std::vector<PaletteFile::Swatch> webSafeColours();

/// The folders of palettes that drawing programs have installed for all users; need not exist.
std::vector<std::filesystem::path> systemPaletteFolders();

} // namespace tintra
