#pragma once

#include "tools/cmyk/Colour.h"

namespace tintra::cmyk {

/// Coverage of black wished for a colour: none from lightness 90 up; in greys more and more down
/// to full black at `blackLightness`; in saturated colours full, since what cyan, magenta and
/// yellow have in common only dulls them there and black does that with less ink.
[[nodiscard]] double blackWish(const Lab& colour, double blackLightness);

} // namespace tintra::cmyk
