#pragma once

#include "platform/Uuid.h"

#include <string>
#include <string_view>

// The keys by which changes that follow each other closely become one step of undo. Whatever passes
// none is a step of its own; renames and moves are, except within one pointer gesture.

namespace tintra::coalescing {

/// A channel of a swatch in the colour editor.
inline std::string swatchChannel(const Uuid& swatch, std::string_view channel) {
    return "swatch " + swatch.text() + " " + std::string(channel);
}

/// An amount of a well.
inline std::string well(const Uuid& id, std::string_view field) {
    return "well " + id.text() + " " + std::string(field);
}

/// A seed of a harmony: "first" or "last".
inline std::string seed(std::string_view role) {
    return "seed " + std::string(role);
}

} // namespace tintra::coalescing
