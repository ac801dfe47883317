#pragma once

#include "state/OpenPalettes.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
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

    /// Where the colour came from. `origin` is there for paletteSwatch and dormant; a staged column
    /// has one when its swatch was deleted, so that undoing that gives the link back.
    struct Source {
        Kind kind = Kind::staged;
        std::optional<PaletteOrigin> origin;
        bool operator==(const Source&) const = default;
    };

    Uuid id;
    WashColor color; ///< as last known, opaque
    Source source;
    /// What it is called when its source is gone; none for the nearest name, never empty. While it
    /// follows a swatch, the name given to the swatch.
    std::optional<std::string> keptName;

    /// Whether it belongs to a swatch that is there or may come back.
    bool isLinked() const {
        return source.kind == Kind::paletteSwatch || source.kind == Kind::dormant;
    }
    bool operator==(const BenchColumn&) const = default;
};

/// A pair of columns mixed as pigments.
struct BenchWell {
    Uuid id;
    Uuid parentA, parentB;       ///< columns
    double ratio = 0.5;          ///< share of `parentB`, 0...1
    double white = 0, black = 0; ///< added, 0...1

    bool hasParent(const Uuid& column) const { return parentA == column || parentB == column; }
    /// Whether it mixes the two, whichever comes first.
    bool mixes(const Uuid& a, const Uuid& b) const {
        return (parentA == a && parentB == b) || (parentA == b && parentB == a);
    }
    bool operator==(const BenchWell&) const = default;
};

/// The active item of the Bench.
struct BenchSelection {
    enum class Of { column, well };
    Of kind = Of::column;
    Uuid id;
    bool operator==(const BenchSelection&) const = default;
};

/// What lies on the Bench, as undo exchanges it. Every well has two columns of it as parents, and
/// no two wells the same two.
struct BenchContent {
    std::vector<BenchColumn> columns;
    std::vector<BenchWell> wells;

    /// The place of a column, of a well; nothing when it is not there.
    std::optional<std::size_t> indexOfColumn(const Uuid& id) const;
    std::optional<std::size_t> indexOfWell(const Uuid& id) const;
    /// Takes a column out with every well that has it as a parent.
    void removeColumn(const Uuid& id);
    void removeWell(const Uuid& id);
    bool operator==(const BenchContent&) const = default;
};

std::string_view rawValue(BenchColumn::Kind kind);
std::optional<BenchColumn::Kind> benchColumnKind(std::string_view raw);
/// What the badge of such a column says; a dormant one shows its palette's name instead where it
/// has one.
std::string_view badge(BenchColumn::Kind kind);

/// The colour as the Bench holds it.
WashColor opaque(WashColor color);

} // namespace tintra
