#pragma once

#include "colour/WashColor.h"

namespace tintra::stylesheet {

/// A colour given in gamma-encoded Display P3 (CSS Color 4); outside sRGB where it lies there.
WashColor p3(double r, double g, double b, double alpha);

} // namespace tintra::stylesheet
