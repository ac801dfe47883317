#pragma once

namespace tintra {

/// Hue, saturation, brightness, each 0...1; the hue is a fraction of a turn.
struct Hsb {
    double h = 0, s = 0, b = 0;
};

/// Hue in degrees 0...360 (exclusive), saturation and lightness in percent 0...100.
struct Hsl {
    double h = 0, s = 0, l = 0;
};

/// Gamma-encoded red, green, blue, nominally 0...1.
struct Rgb {
    double r = 0, g = 0, b = 0;
};

/// By the six sectors of the hue circle; any finite hue, whole turns make no difference.
Rgb rgbFromHsb(const Hsb& colour);

/// HSL given as a hue in degrees (any finite value) and fractions 0...1 of saturation and
/// lightness, the way CSS counts them.
Rgb rgbFromHsl(double degrees, double saturation, double lightness);

} // namespace tintra
