#include "colour/Clamp.h"
#include "colour/ColorProfiles.h"
#include "colour/WashColor.h"

#include <algorithm>
#include <cmath>

namespace tintra {

namespace {

/// The largest difference in red, green or blue that still counts as the same print.
constexpr double kTolerance = 0.02;

} // namespace

bool isOutsideGamut(const WashColor& colour, const ColourSpace& cmykSpace) {
    if (cmykSpace.componentCount() != 4) return false;
    auto inks = cmykSpace.fromSrgb({colour.r, colour.g, colour.b});
    if (!inks) return false;
    for (double& ink : *inks)
        ink = clampedUnit(ink);
    const auto back = cmykSpace.toSrgb(*inks);
    if (!back) return false;
    const double difference = std::max(
        {std::abs(back->r - colour.r), std::abs(back->g - colour.g), std::abs(back->b - colour.b)});
    return difference > kTolerance;
}

} // namespace tintra
