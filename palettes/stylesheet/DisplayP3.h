#pragma once

#include "colour/Hsb.h"

namespace tintra::stylesheet {

/// Gamma-encoded sRGB, unclamped, of gamma-encoded Display P3 (CSS Color 4, sections 10 and 18).
Rgb srgbFromDisplayP3(const Rgb& p3);

} // namespace tintra::stylesheet
