#pragma once

#include "palettes/PaletteEntry.h"
#include "palettes/library/FolderListing.h"

#include <filesystem>
#include <optional>
#include <vector>

namespace tintra {

/// A folder whose palettes are listed, or, without a folder, the palettes that are made by rule.
struct PaletteSource {
    PaletteEntry::Group group = PaletteEntry::Group::location;
    std::optional<Uuid> location; ///< of a watched folder
    std::filesystem::path folder; ///< plain, see below
    Listed listed = Listed::palettes;

    bool operator==(const PaletteSource&) const = default;
};

/// A folder as folders are compared: by its path, without "." and a slash at its end.
std::filesystem::path plainFolder(const std::filesystem::path& folder);

/// The entry of a file of the source, with what the cache holds of it. Any thread.
PaletteEntry entryOf(const PaletteSource& source, const ListedFile& file,
                     const PaletteCache::Found& palette);

/// The palettes made by rule.
std::vector<PaletteEntry> entriesByRule(PaletteCache& cache);

/// Gives an entry what was read of it.
void take(PaletteEntry& entry, PaletteCache::Found palette);

} // namespace tintra
