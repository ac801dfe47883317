#include "colour/ChromaFit.h"
#include "colour/Clamp.h"
#include "colour/Contrast.h"
#include "colour/ContrastLightness.h"
#include "colour/SrgbBytes.h"

#include <algorithm>

namespace tintra::Contrast {

namespace {

/// Wide enough that colours which round to the edge of sRGB count as inside.
constexpr GamutFit kFit{.tolerance = 0.0005, .halvings = 24};

/// The colours that one colour becomes when only its lightness moves.
class LightnessPath {
public:
    explicit LightnessPath(const WashColor& colour)
        : lch_(oklchFromOklab(
              WashColor{clampedUnit(colour.r), clampedUnit(colour.g), clampedUnit(colour.b), 1}
                  .oklab())),
          hue_(HueDirection::of(lch_.h)) {}

    struct Place {
        WashColor colour; ///< whole bytes, opaque
        bool eased;       ///< chroma was lowered by more than 0.004
    };

    double start() const { return lch_.l; }

    Place at(double lightness) const {
        const double chroma = fittedChroma(lightness, lch_.c, hue_, kFit);
        const auto linear = linearFromOklab(hue_.at(lightness, chroma));
        const auto quantised = [this](double v) { return bytes_.byte(v) / 255.0; };
        return {{quantised(linear.r), quantised(linear.g), quantised(linear.b), 1},
                lch_.c - chroma > 0.004};
    }

private:
    Oklch lch_;
    HueDirection hue_;
    const SrgbBytes& bytes_ = SrgbBytes::shared();
};

} // namespace

double lightness(const WashColor& colour) {
    return LightnessPath(colour).start();
}

WashColor atLightness(const WashColor& colour, double lightness) {
    auto moved = LightnessPath(colour).at(clampedUnit(lightness)).colour;
    moved.a = clampedUnit(colour.a);
    return moved;
}

std::optional<Reached> reach(const WashColor& moving,
                             const std::function<bool(const WashColor&)>& passes) {
    const LightnessPath path(moving);
    const double alpha = clampedUnit(moving.a);
    std::optional<Reached> nearest;
    // Steps are counted, not summed up, so that equal distances up and down are equal.
    int stepsLeft = 1001;
    for (const int direction : {1, -1}) {
        for (int step = 1; step < stepsLeft; ++step) {
            const double distance = step * 0.001;
            const double lightness = path.start() + direction * distance;
            if (lightness < 0 || lightness > 1) break;
            auto [candidate, eased] = path.at(lightness);
            candidate.a = alpha;
            if (!passes(candidate)) continue;
            nearest = Reached{candidate, direction > 0, eased, distance};
            stepsLeft = step; // the other direction counts only when strictly nearer
        }
    }
    return nearest;
}

std::vector<double> thresholdLightnesses(const WashColor& moving, const WashColor& against,
                                         Role role, std::span<const double> thresholds) {
    const LightnessPath path(moving);
    const auto ratioAt = [&](double lightness) {
        const auto colour = path.at(std::min(lightness, 1.0)).colour;
        return role == Role::text ? wcagRatio(colour, against) : wcagRatio(against, colour);
    };
    std::vector<double> crossings;
    double previous = ratioAt(0);
    for (int sample = 1; sample <= 200; ++sample) {
        const double lightness = sample * 0.005;
        const double ratio = ratioAt(lightness);
        for (const double t : thresholds)
            if ((previous < t && t <= ratio) || (previous > t && t >= ratio))
                crossings.push_back(lightness - 0.0025);
        previous = ratio;
    }
    return crossings;
}

} // namespace tintra::Contrast
