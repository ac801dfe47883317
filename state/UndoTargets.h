#pragma once

#include "state/BenchContent.h"
#include "state/PaletteSwatch.h"
#include "state/PaletteWindows.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tintra {

/// The file that a palette is attached to.
struct PaletteAttachment {
    std::string name; ///< without extension
    std::filesystem::path url;
    bool operator==(const PaletteAttachment&) const = default;
};

/// A palette window's palette as undo keeps it.
struct PaletteContent {
    std::vector<PaletteSwatch> swatches;
    std::optional<PaletteAttachment> attachment; ///< so that undoing a load gives the file back too
    bool dirty = false;
    /// How often the window had saved: a palette that was clean then is not clean after a save of
    /// something else.
    std::uint64_t saves = 0;
    FileVersion loadedVersion; ///< of the attached file
};

/// A palette window as undo sees it: each operation takes a new value in and answers the old one,
/// without taking a checkpoint.
class PaletteUndoTarget {
public:
    virtual ~PaletteUndoTarget() = default;
    /// The palette as it stands, so that a step can be called by what it changes.
    virtual const std::vector<PaletteSwatch>& swatches() const = 0;
    virtual PaletteContent exchangePalette(PaletteContent other) = 0;
    virtual Seeds exchangeSeeds(Seeds other) = 0;
    /// The same swatch from one place to another (counted without it).
    virtual void exchangeMove(std::size_t from, std::size_t to) = 0;
};

/// The Bench as undo sees it.
class BenchUndoTarget {
public:
    virtual ~BenchUndoTarget() = default;
    virtual BenchContent exchangeContent(BenchContent other) = 0;
};

/// How undo finds a palette window.
class UndoWindows {
public:
    virtual ~UndoWindows() = default;
    /// None when the window is closed.
    virtual PaletteUndoTarget* undoTarget(const Uuid& window) = 0;
};

} // namespace tintra
