#include "palettes/PaletteLocation.h"

#include "palettes/Stylesheet.h"
#include "palettes/library/FolderListing.h"

#include <system_error>

namespace tintra {

namespace fs = std::filesystem;

bool PaletteLocation::isOnline() const {
    std::error_code failed;
    const fs::directory_iterator listed(path, failed);
    return !failed;
}

std::vector<fs::path> PaletteLocation::files() const {
    return paletteFiles(path, includesStylesheets);
}

std::vector<fs::path> paletteFiles(const fs::path& in, bool includingStylesheets) {
    const auto listed = includingStylesheets ? Listed::palettesAndStylesheets : Listed::palettes;
    std::vector<fs::path> files;
    for (auto& file : listFolder(in, listed).files)
        if (!file.isStylesheet || Stylesheet::isPalette(file.path))
            files.push_back(std::move(file.path));
    return files;
}

} // namespace tintra
