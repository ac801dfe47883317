#pragma once

#include "colour/WashColor.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tintra::tour {

/// What a palette window shows in a picture.
struct Palette {
    std::string name;
    std::vector<WashColor> colours;
    std::vector<std::optional<std::string>> names; ///< in step with the colours
};

/// Twelve colours of a harbour; the first `count` of them.
Palette harbourLight(std::size_t count = 12);
/// Forty: five hues in eight steps.
Palette interfaceScale();

/// A colour from its six digits.
WashColor colour(std::string_view hex);

/// A drawing of a boat at evening, a PNG of 1168 by 904 px.
std::string eveningFerry();

} // namespace tintra::tour
