#pragma once

#include "colour/WashColor.h"

#include <cmath>

namespace tintra {

/// How far two colours lie apart, summed over the components; NaN when one of them is.
inline double distance(const WashColor& one, const WashColor& other) {
    return std::abs(one.r - other.r) + std::abs(one.g - other.g) + std::abs(one.b - other.b) +
           std::abs(one.a - other.a);
}

} // namespace tintra
