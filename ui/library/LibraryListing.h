#pragma once

#include "palettes/PaletteEntry.h"
#include "palettes/PaletteLocation.h"
#include "palettes/PaletteSearch.h"

#include <chrono>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What the Library shows: which palettes, in which groups and order, and why each was found. Pure;
// any thread.

namespace tintra {

/// A palette as the Library shows it. Stays as it is while the store's list changes.
struct LibraryPalette {
    std::string key; ///< of the store's entry
    std::string name;
    bool hasFile = false;  ///< the key is its path
    std::size_t count = 0; ///< of swatches; 0 until it is read
    std::chrono::system_clock::time_point modified;
    PaletteEntry::State state = PaletteEntry::State::loading;
    bool canReveal = false, canTrash = false;
    PaletteCache::Found palette; ///< null until it is read
    // For searching and sorting.
    FoldedText searchedName;
    std::string sortKey;

    /// Both empty for one without a file; the extension with its point.
    std::string_view fileName() const;
    std::string_view extension() const;
};

/// What heads palettes: a watched folder, the colour picker or the system.
struct LibraryGroup {
    std::string key; ///< under which the preferences know it
    PaletteEntry::Group kind = PaletteEntry::Group::location;
    std::optional<PaletteLocation> location; ///< of a watched folder
    std::filesystem::path folder;            ///< empty for the system
    bool isOnline = true;
    std::size_t first = 0, count = 0; ///< its part of the palettes
    std::size_t read = 0;             ///< how many of them were read
};

/// Everything that is listed, by group, at one moment. Shared between threads.
struct LibraryContent {
    std::vector<LibraryGroup> groups;
    std::vector<LibraryPalette> palettes;
};

class PaletteStore;

/// The enabled locations, the colour picker when it holds a list, and the system when it is asked
/// for, as the store has them now. Main loop.
LibraryContent libraryContent(const PaletteStore& store,
                              const std::vector<PaletteLocation>& locations, bool system);

/// A palette that is shown, and why it was found.
struct LibraryFind {
    std::size_t palette = 0; ///< in the content
    PaletteHit hit;          ///< of no meaning without a search
};

/// The palettes to show.
struct LibraryListing {
    std::shared_ptr<const LibraryContent> content = std::make_shared<LibraryContent>();
    bool isSearch = false;
    std::optional<WashColor> color; ///< that was searched for
    /// A group that is shown; in a search only those in which something was found.
    struct Section {
        std::size_t group = 0; ///< in the content
        std::size_t first = 0, count = 0;
    };
    std::vector<Section> sections;
    std::vector<LibraryFind> finds; ///< in order, section by section
    /// When a search for a colour finds nothing: the next wider match that does.
    std::optional<WiderMatch> wider;

    const LibraryPalette& paletteAt(std::size_t find) const {
        return content->palettes[finds[find].palette];
    }
    const LibraryGroup& groupOf(const Section& section) const {
        return content->groups[section.group];
    }
};

/// What is asked for.
struct LibraryQuestion {
    std::string text; ///< of the search field
    ColourMatch match = ColourMatch::close;
    PaletteOrder order;
    PaletteQuery query{text, match}; ///< made on the main loop
};
LibraryListing libraryListing(std::shared_ptr<const LibraryContent> content,
                              const LibraryQuestion& question);

} // namespace tintra
