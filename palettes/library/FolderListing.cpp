#include "palettes/library/FolderListing.h"

#include "palettes/PaletteFile.h"
#include "platform/Unicode.h"

#include <unistd.h>

#include <algorithm>
#include <optional>
#include <system_error>
#include <tuple>

namespace tintra {

namespace {

namespace fs = std::filesystem;
using PaletteFile::Kind;

bool isListed(std::optional<Kind> kind, Listed listed) {
    if (!kind) return false;
    if (listed == Listed::colourLists) return kind == Kind::clr;
    return kind != Kind::stylesheet || listed == Listed::palettesAndStylesheets;
}

/// Nothing for what is not listed, or has gone meanwhile.
std::optional<ListedFile> listedFile(const fs::directory_entry& entry, Listed listed) {
    const auto name = entry.path().filename().string();
    if (name.starts_with('.')) return std::nullopt;
    const auto kind = PaletteFile::kindOf(entry.path());
    std::error_code failed;
    if (!isListed(kind, listed) || !entry.is_regular_file(failed)) return std::nullopt;
    const auto stamp = fileStamp(entry.path());
    if (!stamp) return std::nullopt;
    return ListedFile{entry.path(), *stamp, sortKey(entry.path().stem().string()),
                      kind == Kind::stylesheet, ::access(entry.path().c_str(), W_OK) == 0};
}

} // namespace

FolderListing listFolder(const fs::path& folder, Listed listed) {
    FolderListing listing;
    const bool isWritable = ::access(folder.c_str(), W_OK) == 0;
    fs::directory_iterator at(folder, listing.failed);
    std::error_code failed = listing.failed;
    for (const fs::directory_iterator end; !failed && at != end; at.increment(failed)) {
        auto file = listedFile(*at, listed);
        if (!file) continue;
        file->isWritable = file->isWritable && isWritable;
        listing.files.push_back(std::move(*file));
    }
    // Names that collate as equal stand in one order nevertheless.
    std::ranges::sort(listing.files, [](const ListedFile& a, const ListedFile& b) {
        return std::tie(a.sortKey, a.path.native()) < std::tie(b.sortKey, b.path.native());
    });
    return listing;
}

} // namespace tintra
