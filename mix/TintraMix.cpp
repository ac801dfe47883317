#include "mix/TintraMix.h"

#include "mix/Stage1.h"

namespace TintraMix {

SRGB mix(const SRGB& a, const SRGB& b, double t, double white, double black) {
    return Stage1::mix(a, b, t, white, black);
}

std::vector<SRGB> ramp(const SRGB& a, const SRGB& b, double white, double black, int steps) {
    if (steps < 1) return {};
    if (steps == 1) return {mix(a, b, 0.5, white, black)};
    std::vector<SRGB> colours;
    colours.reserve(static_cast<std::size_t>(steps));
    for (int i = 0; i < steps; ++i)
        colours.push_back(mix(a, b, static_cast<double>(i) / (steps - 1), white, black));
    return colours;
}

} // namespace TintraMix

std::size_t std::hash<TintraMix::SRGB>::operator()(const TintraMix::SRGB& colour) const noexcept {
    const std::hash<double> hashed; // equal zeros of either sign hash alike
    std::size_t mixed = 0;
    for (const double component : {colour.r, colour.g, colour.b})
        mixed = mixed * 31 + hashed(component);
    return mixed;
}
