#pragma once

#include "palettes/PaletteCache.h"
#include "palettes/PaletteExport.h"
#include "palettes/PaletteLocation.h"
#include "palettes/PaletteSearch.h"
#include "platform/Trash.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tintra {

class Background;
class FolderWatch;
class MainLoop;

/// A palette that the Library lists.
struct PaletteEntry {
    /// What holds a palette: a watched folder, the colour picker's folder, or the system.
    enum class Group { location, colourPicker, system };
    enum class State {
        loading, ///< not read yet
        ready,
        unreadable, ///< shown as name + " could not be read"
    };

    std::string name;          ///< of the file, without extension
    std::filesystem::path url; ///< empty for a palette that is made by rule
    Group group = Group::location;
    std::optional<Uuid> location; ///< of a watched folder
    std::size_t count = 0;        ///< of its swatches; 0 until it is read
    std::chrono::system_clock::time_point modified;
    bool isEditable = true; ///< false for system palettes and what may not be written
    State state = State::loading;
    PaletteCache::Found palette; ///< null until it is read

    /// Who it is across rescans: its path, or its name.
    std::string key() const;
    bool operator==(const PaletteEntry&) const = default;
};

/// How the Library is sorted: by date when asked, else by name, else by count; ties by name as a
/// file browser sorts names.
struct PaletteOrder {
    bool byName = true, byDate = false, ascending = true;
};
std::vector<PaletteEntry> sorted(std::vector<PaletteEntry> entries, const PaletteOrder& order);

/// A folder of drawing programs into which palettes can be put ("Install for…").
struct InstallTarget {
    std::string title; ///< "GIMP 2.10"
    std::filesystem::path folder;
    bool operator==(const InstallTarget&) const = default;
};

/// Where the store finds things and what it needs; handed in at start.
struct PaletteSurroundings {
    MainLoop& mainLoop;
    Background& background;
    FolderWatch& folderWatch;
    Trash& trash;
    std::filesystem::path colorsDirectory;            ///< the colour picker's lists
    std::vector<std::filesystem::path> systemFolders; ///< read-only palettes of the system
    std::vector<InstallTarget> installTargets;        ///< those that exist are offered
    /// The palette folders of this machine: `colors` in the user's data folder, the folders that
    /// drawing programs install for all users, and the user's own.
    static PaletteSurroundings ofThisSystem(MainLoop& mainLoop, Background& background,
                                            FolderWatch& folderWatch, Trash& trash);
};

/// The palettes of the watched folders, the colour picker and the system. Files are listed and read
/// in the background; what arrives after a later rescan is dropped. Main loop.
class PaletteStore {
public:
    using Entry = PaletteEntry;

    explicit PaletteStore(PaletteSurroundings surroundings);
    ~PaletteStore();
    PaletteStore(const PaletteStore&) = delete;
    PaletteStore& operator=(const PaletteStore&) = delete;

    /// Is told after `available` has changed, once a turn of the loop.
    void whenChanged(std::function<void()> told);

    /// What to list from now on; rescans.
    void setLocations(std::vector<PaletteLocation> locations, bool system);
    /// Reads every folder again.
    void rescan();
    /// How far a scan is; equal when none is under way.
    struct Progress {
        std::size_t read = 0, found = 0;
    };
    Progress progress() const;
    /// Goes up with every rescan.
    std::uint64_t scanGeneration() const;

    /// The palettes of the enabled locations in the order of locations, then those of the colour
    /// picker, then the system's; by file name within each.
    const std::vector<PaletteEntry>& available() const;
    const PaletteEntry* entry(const std::string& key) const;
    /// Whether a location's folder could be listed at the last scan.
    bool isOnline(const Uuid& location) const;

    /// A search: every listed palette that the query finds, in the order of `available`.
    struct Hit {
        std::string key; ///< of the entry
        PaletteHit hit;
    };
    std::vector<Hit> find(const PaletteQuery& query) const;
    /// When nothing is found: the next wider match that finds something, and how many palettes.
    struct Wider {
        ColourMatch match;
        std::size_t count;
    };
    std::optional<Wider> wider(std::string_view text, ColourMatch than) const;

    // The colour picker's lists. `colorsDirectory` is made when first written to.

    const std::filesystem::path& colorsDirectory() const;
    /// Nothing while access has not been granted; on platforms where the path is the access, the
    /// folder itself.
    std::optional<std::filesystem::path> writableColorsFolder() const;
    bool hasNamed(std::string_view name) const;
    std::optional<std::vector<PaletteFile::Swatch>> loadNamed(std::string_view name) const;
    /// What becomes of a list that already has the name.
    enum class Clash {
        replace,  ///< it goes to the Trash
        keepBoth, ///< the new one gets the next free name
    };
    struct Saved {
        std::string name; ///< as which it was kept
        std::filesystem::path file;
        bool oldIsInTrash = false;
    };
    /// Writes a colour list, and a GIMP palette beside it for the programs that read those.
    std::variant<Saved, FileError> save(std::span<const WashColor> colors,
                                        std::span<const std::optional<std::string>> names,
                                        std::string_view as, Clash clash);
    /// The folders of drawing programs that exist.
    std::vector<InstallTarget> installTargets() const;
    std::variant<Saved, FileError> install(std::span<const WashColor> colors,
                                           std::span<const std::optional<std::string>> names,
                                           std::string_view as, const InstallTarget& into,
                                           Clash clash);

    // Files of entries

    /// Where a copy of that name would go: beside the original, with its extension; a list made by
    /// rule goes to the colour picker.
    std::filesystem::path placeOfCopy(const PaletteEntry& of, std::string_view name) const;
    std::optional<FileError> duplicate(const PaletteEntry& entry, std::string_view name);
    std::optional<FileError> rename(const PaletteEntry& entry, std::string_view name);
    std::variant<TrashedFile, FileError> trash(const PaletteEntry& entry);
    std::optional<FileError> putBack(const TrashedFile& file);
    /// Newest last.
    const std::vector<TrashedFile>& trashedThisSession() const;

    PaletteCache& cache();

private:
    struct Scan;
    std::unique_ptr<Scan> scan_;
};

/// The 216 colours whose components are multiples of 51, as "Web Safe Colours" lists them.
std::vector<PaletteFile::Swatch> webSafeColours();

} // namespace tintra
