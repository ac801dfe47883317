#pragma once

#include "tools/cmyk/Colour.h"
#include "tools/cmyk/Inks.h"

#include <array>
#include <cstddef>

namespace tintra::cmyk {

/// The published figures the profile is built on: sheet-fed offset on coated paper in the sense of
/// ISO 12647-2, the condition known as FOGRA39. README.md beside this file lists the sources.

/// A printed patch of solid inks without black, as measured: D50, white backing. The bits of
/// `inks` are 1 cyan, 2 magenta, 4 yellow; 0 is the bare paper.
struct Solid {
    std::size_t inks;
    Lab lab;
};

inline constexpr std::array<Solid, 8> kSolids{{
    {0, {95, 0, -2}},
    {1, {55, -37, -50}},
    {2, {48, 74, -3}},
    {4, {89, -5, 93}},
    {2 + 4, {47, 68, 48}},
    {1 + 4, {50, -65, 27}},
    {1 + 2, {24, 22, -46}},
    {1 + 2 + 4, {23, 0, 0}},
}};

inline constexpr Lab kSolidBlack{16, 0, 0};

/// Tone value increase at a tone of 0.5, for each ink.
inline constexpr std::array<double, kInkCount> kToneGain{0.143, 0.143, 0.143, 0.171};

/// Index into XYZ of the channel each ink is judged in: the one its colour absorbs.
inline constexpr std::array<std::size_t, kInkCount> kInkChannel{0, 1, 2, 1};

} // namespace tintra::cmyk
