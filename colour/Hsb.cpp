#include "colour/Hsb.h"

#include <algorithm>
#include <cmath>

namespace tintra {

Rgb rgbFromHsb(const Hsb& colour) {
    const double turns = colour.h - std::floor(colour.h);
    const double sixths = turns * 6;
    const double sector = std::floor(sixths);
    const double f = sixths - sector;
    const double v = colour.b;
    const double p = v * (1 - colour.s);
    const double q = v * (1 - colour.s * f);
    const double t = v * (1 - colour.s * (1 - f));
    switch (static_cast<int>(sector) % 6) {
    case 0:
        return {v, t, p};
    case 1:
        return {q, v, p};
    case 2:
        return {p, v, t};
    case 3:
        return {p, q, v};
    case 4:
        return {t, p, v};
    default:
        return {v, p, q};
    }
}

Rgb rgbFromHsl(double degrees, double saturation, double lightness) {
    const double brightness = lightness + saturation * std::min(lightness, 1 - lightness);
    const double s = brightness == 0 ? 0 : 2 * (1 - lightness / brightness);
    const double hue = std::fmod(std::fmod(degrees, 360) + 360, 360);
    return rgbFromHsb({hue / 360, s, brightness});
}

} // namespace tintra
