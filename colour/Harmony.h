#pragma once

#include "colour/WashColor.h"

#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace tintra {

/// How bands of colours come out of one or two seeds.
enum class HarmonyMode {
    ramp,
    complementary,
    splitComplementary,
    analogous,
    triadic,
    tetradic,
    square,
    monochromatic,
    paletteBuilder,
};

/// Where steps are blended and hues are turned: gamma-encoded sRGB and HSB, or OKLab and OKLCH.
enum class BlendSpace { sRGB, okLab };

/// The persisted text and the title of a mode; all modes in menu order.
std::string_view rawValue(HarmonyMode mode);
std::string_view title(HarmonyMode mode);
std::optional<HarmonyMode> harmonyMode(std::string_view raw);
std::span<const HarmonyMode> allHarmonyModes();

/// The persisted text and the title of a blend space; both spaces in menu order.
std::string_view rawValue(BlendSpace space);
std::string_view title(BlendSpace space);
std::optional<BlendSpace> blendSpace(std::string_view raw);
std::span<const BlendSpace> allBlendSpaces();

/// Hue offsets in degrees of a hue harmony; nothing for ramp, monochromatic and paletteBuilder.
/// Only the analogous offsets depend on the count, which counts as 3 at least.
std::optional<std::vector<double>> offsets(HarmonyMode mode, int count);

/// Pure functions; any thread.
namespace Harmony {

using Band = std::vector<WashColor>;

/// The colour with its hue turned, in HSB or OKLCH (chroma gives way where the turned hue leaves
/// sRGB).
WashColor rotate(const WashColor& colour, double degrees, BlendSpace space);

/// Tints and shades of one colour, light to dark; the base stands just past the middle. A count
/// below 3 gives the base twice.
Band monochromatic(const WashColor& base, int count, BlendSpace space);

/// The bands of a mode: one for a ramp, a monochromatic scale, or the anchors of a hue harmony;
/// with `shades` of 2 or more one a hue, from its anchor to `last`. None for paletteBuilder.
std::vector<Band> bands(const WashColor& base, const WashColor& last, HarmonyMode mode, int count,
                        int shades, BlendSpace space);

/// The colour of an OKLCH triple (L 0...1, h in radians), its chroma lowered until it lies in sRGB
/// (within 0.0001 of linear light); lightness and hue stay.
WashColor color(double L, double C, double h, double alpha);

} // namespace Harmony

} // namespace tintra
