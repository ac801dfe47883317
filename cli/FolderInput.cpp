#include "cli/FolderInput.h"

#include "palettes/Stylesheet.h"
#include "palettes/library/FolderListing.h"
#include "palettes/library/PaletteSource.h"
#include "platform/File.h"

#include <algorithm>
#include <atomic>
#include <thread>

namespace tintra::cli {

namespace {

/// A file and what became of it.
struct Reading {
    std::string folder;
    ListedFile file;
    bool isPalette = true; ///< a stylesheet may be none
    PaletteCache::Found palette;
};

/// Threads cost more than they bring below so many files each.
constexpr std::size_t kFilesAThread = 64;

std::vector<Reading> listed(Session& session, const std::vector<std::string>& folders,
                            Stylesheets stylesheets) {
    const auto kinds =
        stylesheets == Stylesheets::include ? Listed::palettesAndStylesheets : Listed::palettes;
    std::vector<Reading> readings;
    for (const auto& folder : folders) {
        auto listing = listFolder(folder, kinds);
        if (listing.failed) session.failure(folder, listing.failed.message());
        for (auto& file : listing.files)
            readings.push_back({folder, std::move(file), true, nullptr});
    }
    return readings;
}

void read(Reading& reading, PaletteCache& cache) {
    const auto& path = reading.file.path;
    reading.isPalette = !reading.file.isStylesheet || Stylesheet::isPalette(path);
    if (reading.isPalette) reading.palette = cache.warm(path);
}

/// Reads all, this thread and as many more as pay; this one also shows how far it is.
void readAll(Session& session, std::vector<Reading>& readings) {
    PaletteCache cache;
    std::atomic<std::size_t> next = 0;
    const auto readNext = [&] {
        const auto at = next++;
        if (at < readings.size()) read(readings[at], cache);
        return at;
    };
    std::vector<std::jthread> others;
    const std::size_t most = std::max(std::thread::hardware_concurrency(), 1U);
    for (auto i = std::min(readings.size() / kFilesAThread, most - 1); i > 0; --i)
        others.emplace_back([&] {
            while (readNext() < readings.size()) {
            }
        });
    std::size_t shown = 0;
    for (auto at = readNext(); at < readings.size(); at = readNext()) {
        if (at < shown + kFilesAThread) continue;
        shown = at;
        session.progress(at, readings.size(), "files");
    }
}

void reportUnreadable(Session& session, const std::filesystem::path& file) {
    const auto content = readFile(file);
    const auto* error = std::get_if<FileError>(&content);
    session.failure(file.string(), error ? error->why : "no swatches in it that can be read");
}

} // namespace

FolderPalettes readFolders(Session& session, const std::vector<std::string>& folders,
                           Stylesheets stylesheets) {
    auto readings = listed(session, folders, stylesheets);
    readAll(session, readings);
    FolderPalettes palettes;
    for (auto& reading : readings) {
        if (!reading.isPalette) continue;
        if (reading.palette == nullptr || !reading.palette->isReadable()) {
            reportUnreadable(session, reading.file.path);
            continue;
        }
        palettes.entries.push_back(entryOf({}, reading.file, reading.palette));
        palettes.folders.push_back(std::move(reading.folder));
    }
    return palettes;
}

} // namespace tintra::cli
