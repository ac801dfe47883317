#pragma once

#include "state/AppState.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace tintra {

/// A pin of the picture as it is marked, on the picture and on its swatch.
struct PinMark {
    std::size_t number = 0;              ///< from 1
    bool isOwn = false;                  ///< placed by the user
    std::optional<std::size_t> swatch{}; ///< its place in the palette; none before it is there
};

/// One for every pin, in their order. Numbers follow the order of the palette; pins whose colours
/// are not in it come last, so that adding all of them changes no number.
std::vector<PinMark> pinMarks(const AppState& state);

} // namespace tintra
