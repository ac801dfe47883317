#pragma once

#include "tools/cmyk/Inks.h"
#include "tools/cmyk/PressModel.h"

namespace tintra::cmyk {

/// The darkest neutral colour the press prints: full black with as much of the other inks, in
/// balance, as the ink limit leaves.
struct BlackPoint {
    Coverages coverages{};
    /// CIELAB lightness, relative to paper.
    double lightness = 0;
};

[[nodiscard]] BlackPoint darkestNeutral(const PressModel& press);

} // namespace tintra::cmyk
