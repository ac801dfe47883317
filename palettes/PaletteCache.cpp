#include "palettes/PaletteCache.h"

#include "palettes/PaletteFile.h"

#include <algorithm>

namespace tintra {

namespace {

namespace fs = std::filesystem;

/// One field of every swatch of a palette, which may not be there.
template <class Field>
auto fieldOf(const PaletteCache::Found& palette, Field PaletteFile::Swatch::*field) {
    std::vector<Field> values;
    if (palette != nullptr)
        std::ranges::transform(palette->swatches, std::back_inserter(values), field);
    return values;
}

} // namespace

PaletteCache::Found PaletteCache::cached(const fs::path& file) const {
    const std::scoped_lock guard(lock_);
    const auto found = palettes_.find(file.native());
    return found == palettes_.end() ? nullptr : found->second;
}

// The stamp is taken first: a file that is replaced while it is read is kept under the older stamp
// and read again the next time.
PaletteCache::Found PaletteCache::warm(const fs::path& file) {
    const auto stamp = fileStamp(file);
    std::error_code failed;
    // A pipe would block whoever opens it.
    if (!stamp || !fs::is_regular_file(file, failed)) return nullptr;
    if (auto known = cached(file); known && known->isReadable() && known->stamp == *stamp)
        return known;
    auto swatches = PaletteFile::readNamed(file);
    if (!swatches && !fs::exists(file, failed)) return nullptr;
    return add(file, *stamp, std::move(swatches).value_or(std::vector<PaletteFile::Swatch>()));
}

PaletteCache::Found PaletteCache::keep(const fs::path& key,
                                       std::vector<PaletteFile::Swatch> swatches) {
    return add(key, {}, std::move(swatches));
}

PaletteCache::Found PaletteCache::add(const fs::path& key, const FileStamp& stamp,
                                      std::vector<PaletteFile::Swatch> swatches) {
    ComparedPalette compared(swatches);
    auto palette = std::make_shared<const CachedPalette>(
        CachedPalette{stamp, std::move(swatches), std::move(compared)});
    const std::scoped_lock guard(lock_);
    palettes_.insert_or_assign(key.native(), palette);
    return palette;
}

std::vector<PaletteFile::Swatch> PaletteCache::swatches(const fs::path& file) const {
    const auto palette = cached(file);
    return palette == nullptr ? std::vector<PaletteFile::Swatch>() : palette->swatches;
}

std::vector<WashColor> PaletteCache::colors(const fs::path& file) const {
    return fieldOf(cached(file), &PaletteFile::Swatch::color);
}

std::vector<std::optional<std::string>> PaletteCache::names(const fs::path& file) const {
    return fieldOf(cached(file), &PaletteFile::Swatch::name);
}

void PaletteCache::retain(const std::function<bool(std::string_view)>& keeps) {
    const std::scoped_lock guard(lock_);
    std::erase_if(palettes_, [&](const auto& palette) { return !keeps(palette.first); });
}

} // namespace tintra
