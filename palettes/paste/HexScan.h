#pragma once

#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string_view>

// Runs of hexadecimal digits in a line. These scans, and the others of the line reader, stand for
// short regular expressions: the first use of ICU's engine alone would take longer than a command
// that reads one colour is to take as a whole.

namespace tintra::paste {

/// The digits of the first place that matches PREFIX[0-9A-Fa-f]{n}\b for one of the counts. The
/// prefix is compared as it stands.
std::optional<std::string_view>
hexAfter(std::string_view prefix, std::initializer_list<std::size_t> counts, std::string_view text);

/// The first match of \b[0-9A-Fa-f]{6}\b.
std::optional<std::string_view> hexWord(std::string_view text);

} // namespace tintra::paste
