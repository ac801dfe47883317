#pragma once

#include "palettes/PaletteCache.h"
#include "palettes/PaletteEntry.h"
#include "palettes/library/PaletteSource.h"

#include <atomic>
#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

namespace tintra {

class Background;
class MainLoop;

/// One reading of one source: lists its folder, then reads the files that the cache does not hold
/// as they are now, a few at a time, so that other background work comes in between. Each step is
/// told on the main loop in tasks of bounded length; nothing is told after `cancel`, and work that
/// is under way ends soon.
class SourceScan : public std::enable_shared_from_this<SourceScan> {
public:
    using Entries = std::shared_ptr<std::vector<PaletteEntry>>;
    /// An entry of those that were told, and what its file holds.
    struct Read {
        std::size_t place;
        PaletteCache::Found palette;
    };
    /// What it tells, on the main loop.
    struct Told {
        /// The palettes of the folder; some may still be loading. How many files are to be read.
        std::function<void(bool isOnline, Entries entries, std::size_t toRead)> listed;
        /// So many more files were read; what belongs to entries that were told.
        std::function<void(std::size_t files, const std::vector<Read>& reads)> read;
        /// Everything was read. The entries where they are others than those told, else null.
        std::function<void(Entries entries)> finished;
    };

    SourceScan(PaletteSource source, std::shared_ptr<PaletteCache> cache, MainLoop& mainLoop,
               Background& background, Told told);

    void start();
    /// Main loop.
    void cancel() { cancelled_ = true; }

private:
    /// A listed file and what became of it.
    struct File {
        ListedFile file;
        PaletteCache::Found palette;
        std::size_t place = 0; ///< among the entries that were told, where it is one of them
        bool isTold = false;
        bool isPalette = true;
    };

    void list();
    void readSome();
    bool read(File& file);
    void tellRead(std::size_t begin, std::size_t end);
    void finish();
    void forgetAbsentFiles();
    Entries entries() const;
    void post(std::function<void()> task);

    const PaletteSource source_;
    const std::shared_ptr<PaletteCache> cache_;
    MainLoop& mainLoop_;
    Background& background_;
    const Told told_;
    std::atomic<bool> cancelled_ = false;

    // Written by `list`, then each file by the one thread that reads it.
    bool isOnline_ = true;
    std::vector<File> files_;
    std::vector<std::size_t> toRead_; ///< indices of files
    std::atomic<std::size_t> next_ = 0, done_ = 0;
    std::atomic<bool> changed_ = false; ///< the entries told are not those that are there
};

} // namespace tintra
