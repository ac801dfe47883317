#include "ui/editor/EditorSpaces.h"

#include "colour/Clamp.h"
#include "colour/ColorProfiles.h"
#include "colour/Harmony.h"
#include "platform/ColourSpace.h"
#include "platform/SrgbCurve.h"
#include "ui/shared/Text.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tintra {
namespace {

constexpr double kDegrees = 180 / std::numbers::pi;
/// How far linear light may leave 0...1 and still be sRGB.
constexpr double kGamutSlack = 1e-4;
/// Less OKLCH chroma than this is a grey, whose hue is chance.
constexpr double kGreyChroma = 5e-4;

// clang-format off
constexpr std::array kRgb{
    EditorChannel{"R", "Red",   0, 255, 1, 0, "", false},
    EditorChannel{"G", "Green", 0, 255, 1, 0, "", false},
    EditorChannel{"B", "Blue",  0, 255, 1, 0, "", false},
};
constexpr std::array kHsb{
    EditorChannel{"H", "Hue",        0, 360, 1, 0, "°", true},
    EditorChannel{"S", "Saturation", 0, 100, 1, 0, "%", false},
    EditorChannel{"B", "Brightness", 0, 100, 1, 0, "%", false},
};
constexpr std::array kHsl{
    EditorChannel{"H", "Hue",        0, 360, 1, 0, "°", true},
    EditorChannel{"S", "Saturation", 0, 100, 1, 0, "%", false},
    EditorChannel{"L", "Lightness",  0, 100, 1, 0, "%", false},
};
constexpr std::array kCmyk{
    EditorChannel{"C", "Cyan",    0, 100, 1, 0, "%", false},
    EditorChannel{"M", "Magenta", 0, 100, 1, 0, "%", false},
    EditorChannel{"Y", "Yellow",  0, 100, 1, 0, "%", false},
    EditorChannel{"K", "Black",   0, 100, 1, 0, "%", false},
};
// The axes of Lab as far as CSS Color 4 counts them; chroma a little beyond what sRGB holds, as
// far as Display P3 does.
constexpr std::array kLab{
    EditorChannel{"L", "Lightness",      0,    100, 1, 1, "", false},
    EditorChannel{"a", "Green to red",   -125, 125, 1, 1, "", false},
    EditorChannel{"b", "Blue to yellow", -125, 125, 1, 1, "", false},
};
constexpr std::array kOklch{
    EditorChannel{"L", "Lightness", 0, 1,    0.01,  3, "",  false},
    EditorChannel{"C", "Chroma",    0, 0.37, 0.005, 3, "",  false},
    EditorChannel{"H", "Hue",       0, 360,  1,     1, "°", true},
};
// clang-format on

double positiveDegrees(double degrees) {
    return degrees < 0 ? degrees + 360 : degrees;
}

// Each space there and back.

// sRGB itself goes round the colour management, which rounds to its own precision.

Figures rgbOf(const WashColor& color, const EditorProfiles& profiles) {
    Components parts{color.r, color.g, color.b, 0};
    if (profiles.rgb != ColourSpace::sRGB().get())
        parts = profiles.rgb->fromSrgb({color.r, color.g, color.b}).value_or(parts);
    return {parts[0] * 255, parts[1] * 255, parts[2] * 255};
}

WashColor fromRgb(const Figures& f, double alpha, const EditorProfiles& profiles) {
    const Components parts{f[0] / 255, f[1] / 255, f[2] / 255, 0};
    ExtendedSrgb srgb{parts[0], parts[1], parts[2]};
    if (profiles.rgb != ColourSpace::sRGB().get())
        srgb = profiles.rgb->toSrgb(parts).value_or(srgb);
    return {srgb.r, srgb.g, srgb.b, alpha};
}

Figures hsbOf(const WashColor& color, const EditorProfiles&) {
    const auto hsb = color.hsb();
    return {hsb.h * 360, hsb.s * 100, hsb.b * 100};
}

WashColor fromHsb(const Figures& f, double alpha, const EditorProfiles&) {
    return WashColor::fromRgb(rgbFromHsb({f[0] / 360, f[1] / 100, f[2] / 100}), alpha);
}

void keepHsb(Figures& figures, const Figures& before) {
    const bool isBlack = figures[2] <= 0;
    if (isBlack) figures[1] = before[1];
    if (isBlack || figures[1] <= 0) figures[0] = before[0];
}

Figures hslOf(const WashColor& color, const EditorProfiles&) {
    const auto hsl = color.hsl();
    return {hsl.h, hsl.s, hsl.l};
}

WashColor fromHsl(const Figures& f, double alpha, const EditorProfiles&) {
    return WashColor::fromRgb(rgbFromHsl(f[0], f[1] / 100, f[2] / 100), alpha);
}

void keepHsl(Figures& figures, const Figures& before) {
    const bool isEnd = figures[2] <= 0 || figures[2] >= 100;
    if (isEnd) figures[1] = before[1];
    if (isEnd || figures[1] <= 0) figures[0] = before[0];
}

Figures cmykOf(const WashColor& color, const EditorProfiles& profiles) {
    const auto inks = profiles.cmyk->fromSrgb({color.r, color.g, color.b}).value_or(Components{});
    Figures figures{};
    for (std::size_t i = 0; i < figures.size(); ++i)
        figures[i] = clampedUnit(inks[i]) * 100;
    return figures;
}

WashColor fromCmyk(const Figures& f, double alpha, const EditorProfiles& profiles) {
    const auto srgb = profiles.cmyk->toSrgb({f[0] / 100, f[1] / 100, f[2] / 100, f[3] / 100});
    if (srgb) return {srgb->r, srgb->g, srgb->b, alpha};
    // A profile that does not print: inks that only take light away.
    const auto left = [&](double ink) { return (1 - ink / 100) * (1 - f[3] / 100); };
    return {left(f[0]), left(f[1]), left(f[2]), alpha};
}

bool isInSrgb(const Rgb& linear) {
    const auto fits = [](double v) { return v >= -kGamutSlack && v <= 1 + kGamutSlack; };
    return fits(linear.r) && fits(linear.g) && fits(linear.b);
}

Figures labOf(const WashColor& color, const EditorProfiles& profiles) {
    const auto lab = color.lab(profiles.white);
    return {lab.L, lab.a, lab.b};
}

WashColor fromLab(const Figures& f, double alpha, const EditorProfiles& profiles) {
    const auto linear = linearFromLab({f[0], f[1], f[2]}, profiles.white);
    if (isInSrgb(linear))
        return {clampedUnit(srgbEncoded(linear.r)), clampedUnit(srgbEncoded(linear.g)),
                clampedUnit(srgbEncoded(linear.b)), alpha};
    const auto lch = oklchFromOklab(oklabFromLinear(linear));
    return Harmony::color(lch.l, lch.c, lch.h, alpha);
}

Figures oklchOf(const WashColor& color, const EditorProfiles&) {
    const auto lch = oklchFromOklab(color.oklab());
    return {lch.l, lch.c, positiveDegrees(lch.h * kDegrees)};
}

WashColor fromOklch(const Figures& f, double alpha, const EditorProfiles&) {
    return Harmony::color(f[0], f[1], f[2] / kDegrees, alpha);
}

void keepOklch(Figures& figures, const Figures& before) {
    if (figures[1] >= kGreyChroma) return;
    figures[1] = 0;
    figures[2] = before[2];
}

// clang-format off
constexpr std::array kSpaces{
    EditorSpaceRow{EditorSpace::rgb,   "RGB",   kRgb,   rgbOf,   fromRgb,   nullptr},
    EditorSpaceRow{EditorSpace::hsb,   "HSB",   kHsb,   hsbOf,   fromHsb,   keepHsb},
    EditorSpaceRow{EditorSpace::hsl,   "HSL",   kHsl,   hslOf,   fromHsl,   keepHsl},
    EditorSpaceRow{EditorSpace::cmyk,  "CMYK",  kCmyk,  cmykOf,  fromCmyk,  nullptr},
    EditorSpaceRow{EditorSpace::lab,   "Lab",   kLab,   labOf,   fromLab,   nullptr},
    EditorSpaceRow{EditorSpace::oklch, "OKLCH", kOklch, oklchOf, fromOklch, keepOklch},
};
// clang-format on

constexpr bool inOrder() {
    for (std::size_t i = 0; i < kSpaces.size(); ++i)
        if (static_cast<std::size_t>(kSpaces[i].value) != i) return false;
    return true;
}
static_assert(inOrder());

} // namespace

const EditorChannel kAlphaChannel{"A", "Alpha", 0, 100, 1, 0, "%", false};

double EditorChannel::fitted(double value) const {
    if (!std::isfinite(value)) return from;
    if (!wraps) return std::clamp(value, from, to);
    if (value >= from && value <= to) return value;
    const auto turn = to - from;
    return value - std::floor((value - from) / turn) * turn;
}

double EditorChannel::share(double value) const {
    return clampedUnit((value - from) / (to - from));
}

QString EditorChannel::text(double value) const {
    // Adding 0 turns what rounds to "-0" into "0".
    const auto scale = std::pow(10, digits);
    return QString::number(std::round(value * scale) / scale + 0.0, 'f', digits);
}

QString EditorChannel::spoken(double value) const {
    if (unit.empty()) return text(value);
    const auto gap = unit == "%" ? QStringLiteral(" ") : QString();
    return text(value) + gap + fromUtf8(unit);
}

std::optional<double> EditorChannel::read(const QString& typed) const {
    auto number = typed.trimmed();
    if (!unit.empty() && number.endsWith(fromUtf8(unit)))
        number = number.chopped(fromUtf8(unit).size()).trimmed();
    number.replace(QLatin1Char(','), QLatin1Char('.'));
    number.replace(QChar(0x2212), QLatin1Char('-'));
    bool reads = false;
    const auto value = number.toDouble(&reads);
    if (!reads || !std::isfinite(value)) return std::nullopt;
    return fitted(value);
}

EditorProfiles EditorProfiles::current() {
    const auto& profiles = ColorProfiles::shared();
    return {&profiles.rgbSpace(), &profiles.cmykSpace(), profiles.labIlluminant()};
}

const EditorSpaceRow& editorSpace(EditorSpace space) {
    return kSpaces[static_cast<std::size_t>(space)];
}

std::span<const EditorSpaceRow> allEditorSpaces() {
    return kSpaces;
}

QString editorSpaceTitle(EditorSpace space, LabIlluminant white) {
    const auto title = worded(editorSpace(space).title);
    if (space != EditorSpace::lab) return title;
    return title +
           (white == LabIlluminant::d50 ? QStringLiteral(" · D50") : QStringLiteral(" · D65"));
}

} // namespace tintra
