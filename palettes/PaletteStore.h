#pragma once

#include "palettes/DrawingPrograms.h"
#include "palettes/PaletteCache.h"
#include "palettes/PaletteEntry.h"
#include "palettes/PaletteExport.h"
#include "palettes/PaletteLocation.h"
#include "palettes/PaletteSearch.h"
#include "palettes/SystemPalettes.h"
#include "palettes/library/FileWork.h"
#include "platform/Trash.h"

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
class PaletteList;

/// Where the store finds things and what it needs; handed in at start.
struct PaletteSurroundings {
    MainLoop& mainLoop;
    Background& background;
    FolderWatch& folderWatch;
    Trash& trash;
    std::filesystem::path colorsDirectory;            ///< the colour picker's lists; empty for none
    std::vector<std::filesystem::path> systemFolders; ///< read-only palettes of the system
    std::vector<InstallTarget> installTargets;        ///< those that exist are offered
    /// The palette folders of this machine: `colors` in the user's data folder, the folders that
    /// drawing programs install for all users, and the user's own.
    static PaletteSurroundings ofThisSystem(MainLoop& mainLoop, Background& background,
                                            FolderWatch& folderWatch, Trash& trash);
};

/// The palettes of the watched folders, the colour picker and the system. Files are listed and read
/// in the background; what arrives after a later rescan is dropped. A folder that changes is read
/// again by itself. Main loop.
class PaletteStore {
public:
    using Entry = PaletteEntry;

    explicit PaletteStore(PaletteSurroundings surroundings);
    ~PaletteStore();
    PaletteStore(const PaletteStore&) = delete;
    PaletteStore& operator=(const PaletteStore&) = delete;

    /// Is told after `available` or the folders to install into have changed, once a turn of the
    /// loop.
    void whenChanged(std::function<void()> told);

    /// What to list from now on; rescans. Entries of locations that stay, stay meanwhile.
    void setLocations(const std::vector<PaletteLocation>& locations, bool system);
    /// Lists every folder again and reads the files that have changed.
    void rescan();
    bool isScanning() const;
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
    /// Whether a location's folder could be listed at the last scan; true before the first one.
    bool isOnline(const Uuid& location) const;

    /// A search: every listed palette that the query finds, in the order of `available`.
    struct Hit {
        std::string key;   ///< of the entry
        std::size_t index; ///< of the entry in `available`, as long as that does not change
        PaletteHit hit;
    };
    std::vector<Hit> find(const PaletteQuery& query) const;
    /// When nothing is found: the next wider match that finds something, and how many palettes.
    using Wider = WiderMatch;
    std::optional<Wider> wider(std::string_view text, ColourMatch than) const;

    // The colour picker's lists. `colorsDirectory` is made when first written to. A name that is
    // unfit for a file is made fit ("50/50" is kept as "50-50"); an empty one is refused.

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
    /// Swatches to be written; a shorter list of names leaves the rest unnamed.
    struct Content {
        std::vector<WashColor> colors;
        std::vector<std::optional<std::string>> names;
        static Content of(std::span<const PaletteFile::Swatch> swatches);
    };
    // What changes files is done beside the main loop, one after the other in the order in which it
    // was asked for. What became of it is told on the main loop, to nobody after the end of the
    // store.
    using Done = std::function<void(const std::optional<FileError>& error)>;
    using SaveDone = std::function<void(const std::variant<Saved, FileError>&)>;
    using TrashDone = std::function<void(const std::variant<TrashedFile, FileError>&)>;

    /// Writes a colour list, and a GIMP palette beside it for the programs that read those.
    void save(Content content, std::string_view as, Clash clash, SaveDone then);
    /// The folders of drawing programs that existed when folders were last listed.
    const std::vector<InstallTarget>& installTargets() const { return installTargets_; }
    void install(Content content, std::string_view as, const InstallTarget& into, Clash clash,
                 SaveDone then);

    // Files of entries. A name that is unfit for a file is refused (see whyUnfit in
    // palettes/FileNames.h). A colour list and the GIMP palette beside it go together.

    /// Where a copy of that name would go: beside the original, with its extension; a copy of a
    /// system palette goes to the colour picker as a colour list.
    std::filesystem::path placeOfCopy(const PaletteEntry& of, std::string_view name) const;
    void duplicate(const PaletteEntry& entry, std::string_view name, Done then);
    void rename(const PaletteEntry& entry, std::string_view name, Done then);
    void trash(const PaletteEntry& entry, TrashDone then);
    void putBack(const TrashedFile& file, Done then);
    /// Newest last.
    const std::vector<TrashedFile>& trashedThisSession() const;

    PaletteCache& cache();

private:
    /// A file that went to the Trash together with one of `trashed_`.
    struct Companion {
        std::filesystem::path of; ///< in the Trash
        TrashedFile file;
    };

    void findInstallTargets();
    void duplicateAsColourList(const PaletteEntry& entry, std::string_view name, Done then);
    void noteTrashed(const std::vector<TrashedFile>& files);
    void put(const std::filesystem::path& folder, std::string_view as,
             std::span<const ExportFormat> formats, Content content, Clash clash, SaveDone then);

    PaletteSurroundings surroundings_;
    std::shared_ptr<PaletteList> list_;
    std::uint64_t scanGeneration_ = 0;
    std::vector<TrashedFile> trashed_;
    std::vector<Companion> companions_;
    std::vector<InstallTarget> installTargets_;
    FileWork fileWork_; ///< the first to go: what it tells uses the rest
};

} // namespace tintra
