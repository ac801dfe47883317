#pragma once

namespace tintra {

/// The value brought into 0...1; NaN becomes 0.
constexpr double clampedUnit(double v) {
    return v > 0 ? (v < 1 ? v : 1) : 0;
}

/// Alpha counts as opaque from here upward, everywhere.
inline constexpr double kOpaqueFrom = 0.999;

} // namespace tintra
