#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// Names of palettes as names of files.

namespace tintra {

/// Why a name that a person gives cannot be that of a palette file, as a sentence; nothing for one
/// that can.
std::optional<std::string> whyUnfit(std::string_view name);

/// The name made fit: "/" and control characters replaced, points at its beginning and white space
/// at both ends left out, cut to a length that leaves room for a number and an extension. Empty
/// when nothing is left.
std::string fitFileName(std::string_view name);

} // namespace tintra
