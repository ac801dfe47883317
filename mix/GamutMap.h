#pragma once

#include "mix/SpectralData.h"

namespace TintraMix::GamutMap {

/// The linear sRGB colour brought into 0...1 by lowering its OKLCH chroma at the same lightness and
/// hue, and clipped as soon as that is not noticed (the gamut mapping of CSS Color 4).
/// `jnd` is the distance in OKLab that goes unnoticed, `epsilon` (1e-12 or more) how closely chroma
/// is searched. The answer may leave 0...1 by float noise; NaN in gives NaN out.
SpectralData::Triple map(const SpectralData::Triple& linearRGB, double jnd, double epsilon);

} // namespace TintraMix::GamutMap
