#pragma once

#include <array>
#include <cstddef>

namespace tintra::cmyk {

/// The inks in the order of every table of four.
enum Ink : std::size_t { kCyan, kMagenta, kYellow, kBlack };

inline constexpr std::size_t kInkCount = 4;

/// Share of the paper each ink covers, 0 to 1, as the press model sees it. The separation works
/// with values a little outside that range too (see NodeSolver.h).
using Coverages = std::array<double, kInkCount>;

/// Tone values as they stand in a file, 0 to 1 (printed as percent).
using Tones = std::array<double, kInkCount>;

/// Most ink the paper takes: the sum of the four tones.
inline constexpr double kInkLimit = 3.0;

} // namespace tintra::cmyk
