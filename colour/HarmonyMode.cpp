#include "colour/CaseTable.h"
#include "colour/Harmony.h"

#include <algorithm>

namespace tintra {

namespace {

using Degrees = std::vector<double>;

struct ModeRow {
    HarmonyMode value;
    std::string_view raw, title;
};

struct SpaceRow {
    BlendSpace value;
    std::string_view raw, title;
};

constexpr std::array kModes{
    ModeRow{HarmonyMode::ramp, "ramp", "Colour Ramp"},
    ModeRow{HarmonyMode::complementary, "complementary", "Complementary"},
    ModeRow{HarmonyMode::splitComplementary, "splitComplementary", "Split Complementary"},
    ModeRow{HarmonyMode::analogous, "analogous", "Analogous"},
    ModeRow{HarmonyMode::triadic, "triadic", "Triadic"},
    ModeRow{HarmonyMode::tetradic, "tetradic", "Tetradic"},
    ModeRow{HarmonyMode::square, "square", "Square"},
    ModeRow{HarmonyMode::monochromatic, "monochromatic", "Monochromatic"},
    ModeRow{HarmonyMode::paletteBuilder, "paletteBuilder", "Palette"},
};
static_assert(inCaseOrder(kModes));
constexpr auto kModeCases = casesOf(kModes);

constexpr std::array kSpaces{
    SpaceRow{BlendSpace::sRGB, "sRGB", "sRGB (classic)"},
    SpaceRow{BlendSpace::okLab, "okLab", "OKLab (perceptual)"},
};
static_assert(inCaseOrder(kSpaces));
constexpr auto kSpaceCases = casesOf(kSpaces);

/// Neighbouring hues around 0, one more after it than before when the number is even: at most 30
/// degrees apart and never over more than 180 together.
Degrees analogousOffsets(int count) {
    const int n = std::max(count, 3);
    const double step = std::min(180.0 / (n - 1), 30.0);
    Degrees found(static_cast<std::size_t>(n));
    int place = -((n - 1) / 2);
    for (double& offset : found)
        offset = step * place++;
    return found;
}

} // namespace

std::string_view rawValue(HarmonyMode mode) {
    return rowOf(kModes, mode).raw;
}
std::string_view title(HarmonyMode mode) {
    return rowOf(kModes, mode).title;
}
std::optional<HarmonyMode> harmonyMode(std::string_view raw) {
    return caseOf(kModes, raw);
}
std::span<const HarmonyMode> allHarmonyModes() {
    return kModeCases;
}

std::string_view rawValue(BlendSpace space) {
    return rowOf(kSpaces, space).raw;
}
std::string_view title(BlendSpace space) {
    return rowOf(kSpaces, space).title;
}
std::optional<BlendSpace> blendSpace(std::string_view raw) {
    return caseOf(kSpaces, raw);
}
std::span<const BlendSpace> allBlendSpaces() {
    return kSpaceCases;
}

std::optional<Degrees> offsets(HarmonyMode mode, int count) {
    switch (mode) {
    case HarmonyMode::complementary:
        return Degrees{0, 180};
    case HarmonyMode::splitComplementary:
        return Degrees{0, 150, 210};
    case HarmonyMode::analogous:
        return analogousOffsets(count);
    case HarmonyMode::triadic:
        return Degrees{0, 120, 240};
    case HarmonyMode::tetradic:
        return Degrees{0, 60, 180, 240};
    case HarmonyMode::square:
        return Degrees{0, 90, 180, 270};
    case HarmonyMode::ramp:
    case HarmonyMode::monochromatic:
    case HarmonyMode::paletteBuilder:
        break;
    }
    return std::nullopt;
}

} // namespace tintra
