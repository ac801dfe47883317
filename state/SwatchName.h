#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tintra {

/// The longest name, in characters (code points); what is longer is cut.
inline constexpr std::size_t kLongestName = 1000;

/// A name as swatches keep it: control characters as blanks, no white space at its ends,
/// well-formed UTF-8, not too long. Nothing when nothing is left. Pure.
std::optional<std::string> swatchNameFrom(std::string_view text);

} // namespace tintra
