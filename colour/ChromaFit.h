#pragma once

#include "colour/Oklab.h"

namespace tintra {

/// What counts as inside sRGB and how closely its edge is searched.
struct GamutFit {
    double tolerance; ///< how far linear light may leave 0...1
    int halvings;     ///< rounds of bisection
};

/// An OKLCH hue as a direction, worked out once for many colours of the hue.
struct HueDirection {
    double cosine, sine;

    static HueDirection of(double radians);
    Oklab at(double lightness, double chroma) const {
        return {lightness, chroma * cosine, chroma * sine};
    }
};

/// The chroma itself when that colour lies in sRGB, else the largest one below that the bisection
/// finds inside. Lightness and hue stay.
double fittedChroma(double lightness, double chroma, const HueDirection& hue, const GamutFit& fit);

} // namespace tintra
