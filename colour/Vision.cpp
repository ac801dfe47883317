#include "colour/Vision.h"

#include "colour/CaseTable.h"
#include "colour/Clamp.h"
#include "colour/SrgbBytes.h"
#include "platform/SrgbCurve.h"

namespace tintra {

namespace {

struct VisionRow {
    Vision value;
    std::string_view raw, title, detail;
    Matrix3 matrix;
};

// clang-format off
/// The dichromacies are those of Machado, Oliveira and Fernandes (2009, "A Physiologically-based
/// Model for Simulation of Color Vision Deficiency") at severity 1; achromatopsia leaves the
/// relative luminance of WCAG. Every row sums to 1 within 1e-6, so white and greys stay.
constexpr std::array kVisions{
    VisionRow{Vision::typical, "typical", "Typical Vision", "", {{
        {1, 0, 0},
        {0, 1, 0},
        {0, 0, 1},
    }}},
    VisionRow{Vision::protanopia, "protanopia", "Protanopia",
              "Red-sensitive cone function absent · red–green deficiency", {{
        { 0.152286,  1.052583, -0.204868},
        { 0.114503,  0.786281,  0.099216},
        {-0.003882, -0.048116,  1.051998},
    }}},
    VisionRow{Vision::deuteranopia, "deuteranopia", "Deuteranopia",
              "Green-sensitive cone function absent · red–green deficiency", {{
        { 0.367322, 0.860646, -0.227968},
        { 0.280085, 0.672501,  0.047413},
        {-0.01182,  0.04294,   0.968881},
    }}},
    VisionRow{Vision::tritanopia, "tritanopia", "Tritanopia",
              "Blue-sensitive cone function absent · blue–yellow deficiency", {{
        { 1.255528, -0.076749, -0.178779},
        {-0.078411,  0.930809,  0.147602},
        { 0.004733,  0.691367,  0.3039},
    }}},
    VisionRow{Vision::achromatopsia, "achromatopsia", "Achromatopsia",
              "Little or no colour perception · very rare", {{
        {0.2126, 0.7152, 0.0722},
        {0.2126, 0.7152, 0.0722},
        {0.2126, 0.7152, 0.0722},
    }}},
};
// clang-format on
static_assert(inCaseOrder(kVisions));
constexpr auto kVisionCases = casesOf(kVisions);

double dot(const std::array<double, 3>& row, const Rgb& c) {
    return row[0] * c.r + row[1] * c.g + row[2] * c.b;
}

} // namespace

std::string_view rawValue(Vision vision) {
    return rowOf(kVisions, vision).raw;
}
std::string_view title(Vision vision) {
    return rowOf(kVisions, vision).title;
}
std::string_view detail(Vision vision) {
    return rowOf(kVisions, vision).detail;
}
std::optional<Vision> vision(std::string_view raw) {
    return caseOf(kVisions, raw);
}
std::span<const Vision> allVisions() {
    return kVisionCases;
}

std::optional<Matrix3> matrix(Vision vision) {
    if (vision == Vision::typical) return std::nullopt;
    return rowOf(kVisions, vision).matrix;
}

WashColor simulate(Vision vision, const WashColor& colour) {
    const auto seen = matrix(vision);
    if (!seen) return colour;
    const Rgb linear{srgbDecoded(colour.r), srgbDecoded(colour.g), srgbDecoded(colour.b)};
    const auto channel = [&](std::size_t row) {
        return clampedUnit(srgbEncoded(dot((*seen)[row], linear)));
    };
    return {channel(0), channel(1), channel(2), clampedUnit(colour.a)};
}

void simulatePicture(Vision vision, std::span<std::uint8_t> rgba) {
    const auto seen = matrix(vision);
    if (!seen) return;
    const auto& bytes = SrgbBytes::shared();
    for (; rgba.size() >= 4; rgba = rgba.subspan(4)) {
        const Rgb linear{bytes.linear(rgba[0]), bytes.linear(rgba[1]), bytes.linear(rgba[2])};
        for (std::size_t row = 0; row < 3; ++row)
            rgba[row] = bytes.byte(dot((*seen)[row], linear));
    }
}

} // namespace tintra
