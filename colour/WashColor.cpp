#include "colour/WashColor.h"

#include "colour/Backdrop.h"
#include "colour/Clamp.h"
#include "colour/ColorProfiles.h"
#include "colour/Hex.h"
#include "platform/SrgbCurve.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>

namespace tintra {

namespace {

Rgb linearOf(const WashColor& c) {
    return {srgbDecoded(c.r), srgbDecoded(c.g), srgbDecoded(c.b)};
}

Rgb255 bytesOf(double r, double g, double b) {
    return {byteOf(r), byteOf(g), byteOf(b)};
}

/// The largest and smallest component, and the hue in sixths of a turn, -1...5 (0 for a grey).
struct HueCircle {
    double largest, smallest, sixths;

    double delta() const { return largest - smallest; }
};

HueCircle hueCircleOf(const WashColor& colour) {
    const double r = clampedUnit(colour.r), g = clampedUnit(colour.g), b = clampedUnit(colour.b);
    HueCircle circle{std::max({r, g, b}), std::min({r, g, b}), 0};
    const double delta = circle.delta();
    if (delta <= 0) return circle;
    if (r == circle.largest)
        circle.sixths = std::fmod((g - b) / delta, 6);
    else if (g == circle.largest)
        circle.sixths = (b - r) / delta + 2;
    else
        circle.sixths = (r - g) / delta + 4;
    return circle;
}

double contrast(double y1, double y2) {
    return (std::max(y1, y2) + 0.05) / (std::min(y1, y2) + 0.05);
}

} // namespace

int byteOf(double component) {
    return static_cast<int>(std::round(clampedUnit(component) * 255));
}

std::optional<WashColor> WashColor::fromPlatform(const PlatformColour& colour) {
    if (!colour.space) return std::nullopt;
    const auto srgb = colour.space == ColourSpace::sRGB()
                          ? std::optional(ExtendedSrgb{colour.components[0], colour.components[1],
                                                       colour.components[2]})
                          : colour.space->toSrgb(colour.components);
    if (!srgb) return std::nullopt;
    return WashColor{srgb->r, srgb->g, srgb->b, clampedUnit(colour.alpha)};
}

WashColor WashColor::fromOklab(const Oklab& colour, double alpha) {
    const auto linear = linearFromOklab(colour);
    return {clampedUnit(srgbEncoded(linear.r)), clampedUnit(srgbEncoded(linear.g)),
            clampedUnit(srgbEncoded(linear.b)), clampedUnit(alpha)};
}

PlatformColour WashColor::ns() const {
    return {ColourSpace::sRGB(), {r, g, b}, a};
}

Rgb255 WashColor::srgb255() const {
    return bytesOf(r, g, b);
}

Rgb255 WashColor::rgb255(const ColourSpace& space) const {
    if (&space == ColourSpace::sRGB().get()) return srgb255();
    const auto converted = space.fromSrgb({r, g, b});
    if (!converted) return srgb255();
    return bytesOf((*converted)[0], (*converted)[1], (*converted)[2]);
}

std::string WashColor::hexNoHash() const {
    const auto bytes = rgb255(ColorProfiles::shared().rgbSpace());
    std::string text;
    for (const int byte : {bytes.r, bytes.g, bytes.b})
        appendHexByte(text, byte);
    return text;
}

std::string WashColor::hex() const {
    return '#' + hexNoHash();
}

std::string WashColor::hexWithAlpha() const {
    auto text = hexNoHash();
    appendHexByte(text, byteOf(a));
    return text;
}

std::string WashColor::identity() const {
    const auto bytes = srgb255();
    std::string text;
    for (const int byte : {bytes.r, bytes.g, bytes.b, byteOf(a)})
        appendHexByte(text, byte);
    return text;
}

Hsb WashColor::hsb() const {
    const auto circle = hueCircleOf(*this);
    const double turn = circle.sixths / 6;
    return {turn < 0 ? turn + 1 : turn, circle.largest == 0 ? 0 : circle.delta() / circle.largest,
            circle.largest};
}

Hsl WashColor::hsl() const {
    const auto circle = hueCircleOf(*this);
    const double sum = circle.largest + circle.smallest;
    const double lightness = sum / 2;
    if (circle.delta() <= 0) return {0, 0, lightness * 100};
    const double saturation = circle.delta() / (lightness > 0.5 ? 2 - sum : sum);
    const double degrees = circle.sixths * 60;
    return {degrees < 0 ? degrees + 360 : degrees, saturation * 100, lightness * 100};
}

Cmyk WashColor::cmyk() const {
    const auto inks = ColorProfiles::shared().cmykSpace().fromSrgb({r, g, b});
    return inks ? Cmyk{(*inks)[0], (*inks)[1], (*inks)[2], (*inks)[3]} : Cmyk{};
}

Lab WashColor::lab(LabIlluminant illuminant) const {
    return labFromLinear(linearOf(*this), illuminant);
}

Oklab WashColor::oklab() const {
    return oklabFromLinear(linearOf(*this));
}

double WashColor::luminance() const {
    const auto linear = linearOf(*this);
    return 0.2126 * linear.r + 0.7152 * linear.g + 0.0722 * linear.b;
}

bool WashColor::isOpaque() const {
    return a >= kOpaqueFrom;
}

WashColor WashColor::overCheckerboard() const {
    if (isOpaque()) return *this;
    const auto under = backdrop();
    const auto over = [this](double channel, double ground) {
        return channel * a + ground * (1 - a);
    };
    return {over(r, under.r), over(g, under.g), over(b, under.b), 1};
}

WashColor WashColor::readableForeground() const {
    const double y = overCheckerboard().luminance();
    return contrast(0, y) >= contrast(1, y) ? WashColor{0, 0, 0, 1} : WashColor{1, 1, 1, 1};
}

} // namespace tintra

std::size_t
std::hash<tintra::WashColor>::operator()(const tintra::WashColor& colour) const noexcept {
    // FNV-1a over the bit patterns; adding 0 turns -0.0 into +0.0, so that equals hash alike.
    std::uint64_t mixed = 0xcbf29ce484222325;
    for (const double component : {colour.r, colour.g, colour.b, colour.a}) {
        mixed ^= std::bit_cast<std::uint64_t>(component + 0.0);
        mixed *= 0x100000001b3;
        mixed ^= mixed >> 32U;
    }
    return mixed;
}
