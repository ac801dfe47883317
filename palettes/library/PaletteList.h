#pragma once

#include "palettes/PaletteCache.h"
#include "palettes/PaletteEntry.h"
#include "palettes/library/PaletteSource.h"
#include "palettes/library/SourceScan.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tintra {

class Background;
class DelayedTask;
class FolderWatch;
class MainLoop;

/// The palettes of several sources as one list, kept up with their folders. Main loop.
class PaletteList : public std::enable_shared_from_this<PaletteList> {
public:
    PaletteList(MainLoop& mainLoop, Background& background, FolderWatch& folderWatch);
    ~PaletteList();
    PaletteList(const PaletteList&) = delete;
    PaletteList& operator=(const PaletteList&) = delete;

    /// Begins to follow the folders; once, when the list is held by a shared pointer.
    void start();
    void whenChanged(std::function<void()> told) { told_ = std::move(told); }

    /// The sources from now on, of no folder two. Entries of those that stay, stay.
    void setSources(const std::vector<PaletteSource>& sources);
    /// Reads every source again; what is under way is dropped.
    void rescan();
    /// The same for the source of one folder, if there is one.
    void rescan(const std::filesystem::path& folder);

    const std::vector<PaletteEntry>& entries() const { return entries_; }
    const PaletteEntry* entry(std::string_view key) const;
    bool isOnline(const Uuid& location) const;
    bool isScanning() const;
    /// Files that are to be read in the scans under way, and how many of them were read.
    std::size_t filesFound() const;
    std::size_t filesRead() const;
    PaletteCache& cache() { return *cache_; }

    /// Tells of a change, once a turn of the loop.
    void changed();
    /// Takes an entry out whose file has gone.
    void remove(const std::string& key);

private:
    /// A source and its part of the entries, which stand in the order of the sources.
    struct Part {
        PaletteSource source;
        std::size_t count = 0; ///< of its entries
        bool isOnline = true;
        std::shared_ptr<SourceScan> scan; ///< null when none is under way
        std::size_t found = 0, read = 0;  ///< files of the scan
        std::unique_ptr<DelayedTask> later;
    };

    void scan(Part& part);
    SourceScan::Told toldBy(const std::shared_ptr<SourceScan*>& scan);
    Part* partOf(const SourceScan* scan);
    std::size_t beginOf(const Part& part) const;
    void replace(Part& part, std::vector<PaletteEntry> fresh);
    void folderChanged(const std::filesystem::path& folder);
    void dropAside(std::vector<PaletteEntry> entries);

    MainLoop& mainLoop_;
    Background& background_;
    FolderWatch& folderWatch_;
    std::shared_ptr<PaletteCache> cache_ = std::make_shared<PaletteCache>();
    std::function<void()> told_;
    bool tells_ = false; ///< a task that tells of a change is posted
    std::vector<Part> parts_;
    std::vector<PaletteEntry> entries_;
    /// Positions by key, made when first asked for; the keys are the entries' own texts.
    mutable std::optional<std::unordered_map<std::string_view, std::size_t>> positions_;
};

} // namespace tintra
