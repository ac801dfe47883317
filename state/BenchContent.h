#pragma once

#include "state/OpenPalettes.h"

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace tintra {

/// A colour on the Bench.
struct BenchColumn {
    enum class Kind {
        paletteSwatch, ///< follows a swatch of an open window
        dormant,       ///< its swatch's window is closed
        staged,        ///< a colour of its own
        derived,       ///< a kept mix
    };

    /// Where the colour came from; `origin` is there for paletteSwatch and dormant only.
    struct Source {
        Kind kind = Kind::staged;
        std::optional<PaletteOrigin> origin;
        bool operator==(const Source&) const = default;
    };

    Uuid id;
    WashColor color; ///< as last known, opaque
    Source source;
    std::optional<std::string> keptName; ///< what it is called when its source is gone
    bool operator==(const BenchColumn&) const = default;
};

/// A pair of columns mixed as pigments.
struct BenchWell {
    Uuid id;
    Uuid parentA, parentB;       ///< columns
    double ratio = 0.5;          ///< share of `parentB`, 0...1
    double white = 0, black = 0; ///< added, 0...1
    bool operator==(const BenchWell&) const = default;
};

/// The active item of the Bench.
struct BenchSelection {
    enum class Of { column, well };
    Of kind = Of::column;
    Uuid id;
    bool operator==(const BenchSelection&) const = default;
};

/// What lies on the Bench, as undo exchanges it.
struct BenchContent {
    std::vector<BenchColumn> columns;
    std::vector<BenchWell> wells;
    bool operator==(const BenchContent&) const = default;
};

std::string_view rawValue(BenchColumn::Kind kind);
std::optional<BenchColumn::Kind> benchColumnKind(std::string_view raw);

} // namespace tintra
