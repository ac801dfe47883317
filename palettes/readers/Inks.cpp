#include "colour/Clamp.h"
#include "colour/ColorProfiles.h"
#include "palettes/readers/Reading.h"

#include <memory>

namespace tintra::PaletteFile {

std::optional<WashColor> colourOfInks(Components inks) {
    const auto& space = ColorProfiles::shared().cmykSpace();
    if (space.componentCount() != static_cast<int>(inks.size())) return std::nullopt;
    for (double& ink : inks)
        ink = clampedUnit(ink);
    // Spaces that were once selected stay alive; the pointer need not share in that.
    const std::shared_ptr<const ColourSpace> borrowed(std::shared_ptr<void>(), &space);
    return WashColor::fromPlatform({borrowed, inks, 1});
}

} // namespace tintra::PaletteFile
