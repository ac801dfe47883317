#pragma once

#include "colour/Hsb.h"
#include "colour/Lab.h"
#include "colour/Oklab.h"
#include "platform/ColourSpace.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tintra {

/// Three whole numbers 0...255.
struct Rgb255 {
    int r = 0, g = 0, b = 0;
    bool operator==(const Rgb255&) const = default;
};

/// Inks 0 (none) to 1 (full).
struct Cmyk {
    double c = 0, m = 0, y = 0, k = 0;
};

/// The one colour value of the system: gamma-encoded extended-range sRGB and alpha, as 64-bit
/// floats, nominally 0...1. Components below 0 or above 1 are colours outside sRGB and are kept;
/// only hex, 0-255, HSB and HSL clamp. A value type that any thread may use.
struct WashColor {
    double r = 0, g = 0, b = 0, a = 1;

    /// RRGGBB, RGB or RRGGBBAA in hexadecimal digits of either case, with white space around it and
    /// "#", "0x" or both before it. Nothing for any other text, four digits included.
    static std::optional<WashColor> fromHex(std::string_view hex);

    /// A colour of the platform, kept unclamped; its alpha is clamped to 0...1. Nothing when its
    /// space refuses the conversion.
    static std::optional<WashColor> fromPlatform(const PlatformColour& colour);

    /// From OKLab; every channel and the alpha are clamped into 0...1 (NaN becomes 0).
    static WashColor fromOklab(const Oklab& colour, double alpha);

    /// From red, green and blue as they are.
    static WashColor fromRgb(const Rgb& colour, double alpha) {
        return {colour.r, colour.g, colour.b, alpha};
    }

    /// The colour in the platform's sRGB space, components as stored.
    PlatformColour ns() const;

    /// "#RRGGBB", upper case, in the RGB space selected in ColorProfiles.
    std::string hex() const;
    /// `hex` without the hash sign.
    std::string hexNoHash() const;
    /// "RRGGBBAA": `hexNoHash` and the alpha byte, deliberately without a hash sign.
    std::string hexWithAlpha() const;
    /// 0...255 in the given RGB space, halves away from zero. NaN and negatives give 0; a refused
    /// conversion gives the plain sRGB bytes.
    Rgb255 rgb255(const ColourSpace& space) const;
    /// 0...255 in plain sRGB.
    Rgb255 srgb255() const;

    /// Which swatch this is: RRGGBBAA of the plain sRGB bytes, whatever space is selected. Two
    /// colours are the same swatch when their identities are equal.
    std::string identity() const;

    /// Of the colour clamped into sRGB. A grey has hue and saturation 0.
    Hsb hsb() const;
    /// Of the colour clamped into sRGB; note the units of Hsl.
    Hsl hsl() const;
    /// Inks in the CMYK space selected in ColorProfiles; all 0 when it refuses the conversion.
    Cmyk cmyk() const;
    Lab lab(LabIlluminant illuminant) const;
    Oklab oklab() const;
    /// Relative luminance (WCAG 2.2), 0...1 for colours of sRGB.
    double luminance() const;

    /// Whether the alpha counts as opaque.
    bool isOpaque() const;
    /// Composited over the current backdrop (colour/Backdrop.h), alpha 1; an opaque colour is
    /// returned as it is.
    WashColor overCheckerboard() const;
    /// Solid black or white, whichever has the higher contrast on `overCheckerboard`; black wins a
    /// tie.
    WashColor readableForeground() const;

    /// All four components compare equal: 0.0 equals -0.0, NaN equals nothing.
    bool operator==(const WashColor&) const = default;
};

/// A component as 0...255: clamped, halves away from zero; NaN gives 0.
int byteOf(double component);

} // namespace tintra

template <>
struct std::hash<tintra::WashColor> {
    std::size_t operator()(const tintra::WashColor& colour) const noexcept;
};
