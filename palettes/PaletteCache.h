#pragma once

#include "palettes/ComparedPalette.h"
#include "palettes/Swatch.h"
#include "platform/FileStamp.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tintra {

/// What was read of a palette file. Never changes; shared between threads.
struct CachedPalette {
    FileStamp stamp;
    /// Empty when the file could not be read.
    std::vector<PaletteFile::Swatch> swatches;
    ComparedPalette compared; ///< the swatches, for searches

    bool isReadable() const { return !swatches.empty(); }
};

/// The decoded swatches of palette files, each by its file and the file's stamp. Any thread.
class PaletteCache {
public:
    using Found = std::shared_ptr<const CachedPalette>;

    /// What was read before, whether or not the file has changed since; null before the first read.
    Found cached(const std::filesystem::path& file) const;
    /// Reads the file unless it is cached as it is now; one that could not be read is tried again.
    /// Null when there is no such file, or no regular one.
    Found warm(const std::filesystem::path& file);
    /// The same for swatches that do not come from a file.
    Found keep(const std::filesystem::path& key, std::vector<PaletteFile::Swatch> swatches);

    /// Of `cached`; empty before the first read.
    std::vector<PaletteFile::Swatch> swatches(const std::filesystem::path& file) const;
    std::vector<WashColor> colors(const std::filesystem::path& file) const;
    std::vector<std::optional<std::string>> names(const std::filesystem::path& file) const;

    /// Drops the files that `keeps` refuses.
    void retain(const std::function<bool(std::string_view file)>& keeps);

private:
    Found add(const std::filesystem::path& key, const FileStamp& stamp,
              std::vector<PaletteFile::Swatch> swatches);

    mutable std::mutex lock_;
    std::unordered_map<std::string, Found> palettes_; ///< by path
};

} // namespace tintra
