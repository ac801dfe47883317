#pragma once

#include "colour/Lab.h"
#include "palettes/Swatch.h"
#include "platform/FileStamp.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace tintra {

/// What was read of a palette file. Never changes; shared between threads.
struct CachedPalette {
    FileStamp stamp;
    /// Empty when the file could not be read.
    std::vector<PaletteFile::Swatch> swatches;
    /// What searches compare, made once: see PaletteSearch.h.
    struct Compared {
        Lab labD50, labD65;
        double hue = 0, saturation = 0; ///< HSB: hue in degrees
    };
    std::vector<Compared> compared;       ///< in step with `swatches`
    std::vector<std::string> foldedNames; ///< names folded for search; in step with `swatches`
};

/// The decoded swatches of palette files, each by its file and the file's stamp. Any thread.
class PaletteCache {
public:
    using Found = std::shared_ptr<const CachedPalette>;

    /// What was read before, whether or not the file has changed since; null before the first read.
    Found cached(const std::filesystem::path& file) const;
    /// Reads the file unless it is cached as it is now. Null when there is no such file.
    Found warm(const std::filesystem::path& file);
    /// The same for swatches that do not come from a file.
    Found keep(const std::filesystem::path& key, std::vector<PaletteFile::Swatch> swatches);

    /// Of `cached`; empty before the first read.
    std::vector<PaletteFile::Swatch> swatches(const std::filesystem::path& file) const;
    std::vector<WashColor> colors(const std::filesystem::path& file) const;
    std::vector<std::optional<std::string>> names(const std::filesystem::path& file) const;

    /// Drops the files that `keeps` refuses.
    void retain(const std::function<bool(const std::filesystem::path&)>& keeps);

private:
    mutable std::mutex lock_;
    std::unordered_map<std::string, Found> palettes_; ///< by path
};

} // namespace tintra
