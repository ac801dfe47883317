#pragma once

#include "palettes/FoldedText.h"
#include "palettes/PaletteCache.h"
#include "platform/Uuid.h"

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tintra {

/// A palette that the Library lists.
struct PaletteEntry {
    /// What holds a palette: a watched folder, the colour picker's folder, or the system.
    enum class Group { location, colourPicker, system };
    enum class State {
        loading, ///< not read yet
        ready,
        unreadable, ///< shown as name + " could not be read"
    };

    std::string name;          ///< of the file, without extension; UTF-8
    std::filesystem::path url; ///< empty for a palette that is made by rule
    Group group = Group::location;
    std::optional<Uuid> location; ///< of a watched folder
    std::size_t count = 0;        ///< of its swatches; 0 until it is read
    std::chrono::system_clock::time_point modified;
    bool isEditable = true; ///< false for system palettes and what may not be written
    State state = State::loading;
    /// Null until it is read; what was read before while a changed file is read again.
    PaletteCache::Found palette;
    // Made once, so that searching and sorting thousands takes no time.
    FoldedText searchedName{};
    std::string sortKey{}; ///< see sortKey in platform/Unicode.h

    /// Who it is across rescans: its path, or its name.
    const std::string& key() const { return url.empty() ? name : url.native(); }
    bool operator==(const PaletteEntry&) const = default;
};

/// How the Library is sorted: by date when asked, else by name, else by count; ties by name as a
/// file browser sorts names, never descending.
struct PaletteOrder {
    bool byName = true, byDate = false, ascending = true;
};
/// What of a palette counts for that.
struct PaletteRank {
    std::string_view sortKey; ///< of its name
    std::size_t count = 0;
    std::chrono::system_clock::time_point modified;
};
bool comesBefore(const PaletteRank& a, const PaletteRank& b, const PaletteOrder& order);
std::vector<PaletteEntry> sorted(std::vector<PaletteEntry> entries, const PaletteOrder& order);

/// The same without moving entries: their positions in the order.
std::vector<std::size_t> sortedPositions(const std::vector<PaletteEntry>& entries,
                                         const PaletteOrder& order);

} // namespace tintra
