#pragma once

#include <cstddef>
#include <functional>
#include <vector>

/// Mixes colours the way paints mix: as reflectances, by Kubelka and Munk. Self-contained; pure
/// functions; any thread.
namespace TintraMix {

/// Gamma-encoded sRGB, nominally 0...1.
struct SRGB {
    double r = 0, g = 0, b = 0;
    bool operator==(const SRGB&) const = default;
};

/// Two colours mixed, `t` (0...1) the share of b; with amounts (0...1) of white and of black paint
/// besides. The answer lies in 0...1. The caller keeps t, white and black in their range.
SRGB mix(const SRGB& a, const SRGB& b, double t, double white, double black);

/// So many mixes from a to b, both ends included; the middle for one step, none for fewer.
std::vector<SRGB> ramp(const SRGB& a, const SRGB& b, double white, double black, int steps);

} // namespace TintraMix

template <>
struct std::hash<TintraMix::SRGB> {
    std::size_t operator()(const TintraMix::SRGB& colour) const noexcept;
};
