#include "palettes/PaletteStore.h"

#include "palettes/library/PaletteList.h"
#include "platform/Locations.h"

#include <algorithm>

namespace tintra {

namespace {

namespace fs = std::filesystem;
using Group = PaletteEntry::Group;

/// Of two sources with one folder the first counts.
void add(std::vector<PaletteSource>& sources, PaletteSource source) {
    if (source.folder.empty()) return;
    source.folder = plainFolder(source.folder);
    const bool known =
        std::ranges::find(sources, source.folder, &PaletteSource::folder) != sources.end();
    if (!known) sources.push_back(std::move(source));
}

std::vector<PaletteSource> sourcesOf(const std::vector<PaletteLocation>& locations, bool system,
                                     const PaletteSurroundings& surroundings) {
    std::vector<PaletteSource> sources;
    for (const auto& location : locations)
        if (location.isEnabled)
            add(sources,
                {Group::location, location.id, location.url(),
                 location.includesStylesheets ? Listed::palettesAndStylesheets : Listed::palettes});
    add(sources,
        {Group::colourPicker, std::nullopt, surroundings.colorsDirectory, Listed::colourLists});
    if (!system) return sources;
    for (const auto& folder : surroundings.systemFolders)
        add(sources, {Group::system, std::nullopt, folder, Listed::palettes});
    sources.push_back({Group::system, std::nullopt, {}, Listed::palettes});
    return sources;
}

} // namespace

PaletteSurroundings PaletteSurroundings::ofThisSystem(MainLoop& mainLoop, Background& background,
                                                      FolderWatch& folderWatch, Trash& trash) {
    const auto data = dataHome();
    return {mainLoop,
            background,
            folderWatch,
            trash,
            data.empty() ? fs::path() : data / "colors",
            systemPaletteFolders(),
            drawingPrograms()};
}

PaletteStore::PaletteStore(PaletteSurroundings surroundings)
    : surroundings_(std::move(surroundings)),
      list_(std::make_shared<PaletteList>(surroundings_.mainLoop, surroundings_.background,
                                          surroundings_.folderWatch)),
      fileWork_(surroundings_.mainLoop, surroundings_.background) {
    list_->start();
}

PaletteStore::~PaletteStore() = default;

void PaletteStore::whenChanged(std::function<void()> told) {
    list_->whenChanged(std::move(told));
}

void PaletteStore::setLocations(const std::vector<PaletteLocation>& locations, bool system) {
    list_->setSources(sourcesOf(locations, system, surroundings_));
    rescan();
}

void PaletteStore::rescan() {
    ++scanGeneration_;
    findInstallTargets();
    list_->rescan();
}

bool PaletteStore::isScanning() const {
    return list_->isScanning();
}

PaletteStore::Progress PaletteStore::progress() const {
    return {list_->filesRead(), list_->filesFound()};
}

std::uint64_t PaletteStore::scanGeneration() const {
    return scanGeneration_;
}

const std::vector<PaletteEntry>& PaletteStore::available() const {
    return list_->entries();
}

const PaletteEntry* PaletteStore::entry(const std::string& key) const {
    return list_->entry(key);
}

bool PaletteStore::isOnline(const Uuid& location) const {
    return list_->isOnline(location);
}

PaletteCache& PaletteStore::cache() {
    return list_->cache();
}

std::vector<PaletteStore::Hit> PaletteStore::find(const PaletteQuery& query) const {
    // A palette that has not been read yet is found by its name.
    static const CachedPalette kUnread;
    std::vector<Hit> hits;
    const auto& entries = available();
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const auto& palette = entries[i].palette ? *entries[i].palette : kUnread;
        if (const auto hit = query.hit(entries[i].searchedName, palette))
            hits.push_back({entries[i].key(), i, *hit});
    }
    return hits;
}

std::optional<PaletteStore::Wider> PaletteStore::wider(std::string_view text,
                                                       ColourMatch than) const {
    return widerMatch(text, than, [&](const PaletteQuery& query) { return find(query).size(); });
}

} // namespace tintra
