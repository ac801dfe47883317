#pragma once

#include "colour/Backdrop.h"
#include "colour/WashColor.h"
#include "state/Choices.h"

namespace tintra {

/// What the interface lays behind colours, as its theme has it; the neutral grey until it says so.
struct ThemeSurfaces {
    Rgb ground{kNeutralBackdrop, kNeutralBackdrop, kNeutralBackdrop}; ///< the surround of swatches
    Rgb checks{kNeutralBackdrop, kNeutralBackdrop, kNeutralBackdrop}; ///< the mean of both checks
};

/// The one colour that stands for a backdrop where text is set or figures are taken: patterned ones
/// count as their mean. Of `custom` the alpha does not count.
Rgb flatBackdrop(SwatchBackdrop backdrop, const WashColor& custom, const ThemeSurfaces& theme);

} // namespace tintra
