#include "palettes/library/PaletteSource.h"

#include "palettes/SystemPalettes.h"
#include "platform/Unicode.h"

namespace tintra {

namespace {

std::chrono::system_clock::time_point dateOf(const FileStamp& stamp) {
    return std::chrono::system_clock::time_point(std::chrono::nanoseconds(stamp.modified));
}

/// A file's name may hold any bytes.
std::string shownName(const std::filesystem::path& file) {
    auto name = file.stem().string();
    return isValidUtf8(name) ? name : utf8FromUtf16(utf16FromUtf8(name));
}

} // namespace

std::filesystem::path plainFolder(const std::filesystem::path& folder) {
    const auto normal = folder.lexically_normal();
    return normal.has_filename() ? normal : normal.parent_path();
}

void take(PaletteEntry& entry, PaletteCache::Found palette) {
    entry.palette = std::move(palette);
    entry.count = entry.palette->swatches.size();
    if (entry.palette->stamp != FileStamp()) entry.modified = dateOf(entry.palette->stamp);
    entry.state =
        entry.palette->isReadable() ? PaletteEntry::State::ready : PaletteEntry::State::unreadable;
}

PaletteEntry entryOf(const PaletteSource& source, const ListedFile& file,
                     const PaletteCache::Found& palette) {
    PaletteEntry entry;
    entry.name = shownName(file.path);
    entry.url = file.path;
    entry.group = source.group;
    entry.location = source.location;
    entry.modified = dateOf(file.stamp);
    entry.isEditable = file.isWritable && source.group != PaletteEntry::Group::system;
    entry.searchedName = FoldedText(entry.name);
    entry.sortKey = file.sortKey;
    if (palette != nullptr) take(entry, palette);
    return entry;
}

std::vector<PaletteEntry> entriesByRule(PaletteCache& cache) {
    PaletteEntry entry;
    entry.name = kWebSafeColours;
    entry.group = PaletteEntry::Group::system;
    entry.isEditable = false;
    entry.searchedName = FoldedText(entry.name);
    entry.sortKey = sortKey(entry.name);
    take(entry, cache.keep(entry.name, webSafeColours()));
    return {std::move(entry)};
}

} // namespace tintra
