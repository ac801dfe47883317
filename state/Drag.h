#pragma once

#include "state/OpenPalettes.h"

#include <optional>
#include <string>
#include <variant>

namespace tintra {

// Where a dragged colour comes from.

struct DragOfSwatch {
    PaletteOrigin origin;
};
struct DragOfBand {};
struct DragOfSeed {};
struct DragOfBenchColumn {
    Uuid column;
};
struct DragOfWell {};
struct DragOfContrastEntry {
    Uuid entry;
};
struct DragOfLibrarySwatch {};
/// From another program.
struct DragOfForeignColour {};

/// A colour that is being dragged.
struct Drag {
    WashColor color;
    std::optional<std::string> name; ///< given by the user or its file
    std::variant<DragOfForeignColour, DragOfSwatch, DragOfBand, DragOfSeed, DragOfBenchColumn,
                 DragOfWell, DragOfContrastEntry, DragOfLibrarySwatch>
        source;
};

} // namespace tintra
