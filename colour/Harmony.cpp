#include "colour/Harmony.h"

#include "colour/ChromaFit.h"
#include "colour/Clamp.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tintra::Harmony {

namespace {

/// Tighter than where only whole bytes come of the colour.
constexpr GamutFit kFit{.tolerance = 0.0001, .halvings = 28};

/// The colour at share t on the straight line between two.
WashColor blend(const WashColor& from, const WashColor& to, double t, BlendSpace space) {
    const double alpha = clampedUnit(std::lerp(from.a, to.a, t));
    if (space == BlendSpace::sRGB)
        return {std::lerp(from.r, to.r, t), std::lerp(from.g, to.g, t), std::lerp(from.b, to.b, t),
                alpha};
    const Oklab start = from.oklab(), end = to.oklab();
    return WashColor::fromOklab(
        {std::lerp(start.L, end.L, t), std::lerp(start.a, end.a, t), std::lerp(start.b, end.b, t)},
        alpha);
}

/// n colours from the first to the last, both included; n is 2 or more.
Band ramp(const WashColor& first, const WashColor& last, int n, BlendSpace space) {
    Band band;
    band.reserve(static_cast<std::size_t>(n));
    for (int i = 0; i < n; ++i)
        band.push_back(blend(first, last, static_cast<double>(i) / (n - 1), space));
    return band;
}

/// Where a scale stands at an index: how far from the base to its light end or to its dark end.
struct ScalePlace {
    enum class Side { base, light, dark } side = Side::base;
    double distance = 0; ///< 0 at the base, 1 at the end
};

ScalePlace placeOf(int index, int baseIndex, int lastIndex) {
    if (index == baseIndex) return {};
    if (index < baseIndex)
        return {ScalePlace::Side::light, 1 - static_cast<double>(index) / baseIndex};
    return {ScalePlace::Side::dark,
            static_cast<double>(index - baseIndex) / (lastIndex - baseIndex)};
}

/// 85 % of the way to white at the light end, 80 % of the way to black at the dark one.
WashColor tintOrShade(const WashColor& base, const ScalePlace& place) {
    const bool light = place.side == ScalePlace::Side::light;
    const WashColor end = light ? WashColor{1, 1, 1, base.a} : WashColor{0, 0, 0, base.a};
    return blend(base, end, place.distance * (light ? 0.85 : 0.8), BlendSpace::sRGB);
}

/// Lightness 0.94 at the light end, 0.18 at the dark one; hue and, as far as sRGB goes, chroma
/// stay.
WashColor relit(const WashColor& base, const Oklch& lch, const ScalePlace& place) {
    const double end = place.side == ScalePlace::Side::light ? 0.94 : 0.18;
    return color(std::lerp(lch.l, end, place.distance), lch.c, lch.h, base.a);
}

} // namespace

WashColor color(double L, double C, double h, double alpha) {
    const auto hue = HueDirection::of(h);
    return WashColor::fromOklab(hue.at(L, fittedChroma(L, C, hue, kFit)), alpha);
}

WashColor rotate(const WashColor& colour, double degrees, BlendSpace space) {
    if (space == BlendSpace::sRGB) {
        auto hsb = colour.hsb();
        hsb.h += degrees / 360;
        return WashColor::fromRgb(rgbFromHsb(hsb), clampedUnit(colour.a));
    }
    const auto lch = oklchFromOklab(colour.oklab());
    return color(lch.l, lch.c, lch.h + degrees * std::numbers::pi / 180, colour.a);
}

Band monochromatic(const WashColor& base, int count, BlendSpace space) {
    if (count < 3) return {base, base};
    const int last = count - 1;
    const int baseIndex =
        std::clamp(static_cast<int>(std::round(last * 0.5151515151515151)), 1, last - 1);
    const auto lch = oklchFromOklab(base.oklab());
    Band band;
    band.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        const auto place = placeOf(i, baseIndex, last);
        if (place.side == ScalePlace::Side::base)
            band.push_back(base);
        else if (space == BlendSpace::sRGB)
            band.push_back(tintOrShade(base, place));
        else
            band.push_back(relit(base, lch, place));
    }
    return band;
}

std::vector<Band> bands(const WashColor& base, const WashColor& last, HarmonyMode mode, int count,
                        int shades, BlendSpace space) {
    if (mode == HarmonyMode::paletteBuilder) return {};
    if (mode == HarmonyMode::monochromatic) return {monochromatic(base, count, space)};
    if (mode == HarmonyMode::ramp) return {ramp(base, last, std::max(count, 2), space)};
    Band anchors;
    for (const double degrees : offsets(mode, count).value_or(std::vector<double>()))
        anchors.push_back(rotate(base, degrees, space));
    if (shades < 2) return {anchors};
    std::vector<Band> found;
    for (const auto& anchor : anchors)
        found.push_back(ramp(anchor, last, shades, space));
    return found;
}

} // namespace tintra::Harmony
