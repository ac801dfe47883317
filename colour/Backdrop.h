#pragma once

#include "colour/Hsb.h"

#include <functional>

namespace tintra {

/// What translucent colours are laid over when nothing else is known, on all three channels.
inline constexpr double kNeutralBackdrop = 0.87;

/// Hands in where the backdrop comes from, once at start; the calling thread becomes the one on
/// which `backdrop` asks it. An empty function takes the source away.
void setBackdropSource(std::function<Rgb()> source);

/// The current backdrop: what the source answers on its own thread; the neutral grey on every other
/// thread and without a source. Background work never reaches interface state through it.
Rgb backdrop();

} // namespace tintra
