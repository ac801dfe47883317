#pragma once

#include "cli/Session.h"
#include "palettes/PaletteEntry.h"

#include <string>
#include <vector>

namespace tintra::cli {

enum class Stylesheets { leaveOut, include };

/// The palettes of folders and, in step with them, the folders as given.
struct FolderPalettes {
    std::vector<PaletteEntry> entries; ///< all of them read
    std::vector<std::string> folders;
};

/// Reads the palettes directly in the folders, with several threads where there are many, and
/// shows progress. Folders and files that cannot be read are reported and left out.
FolderPalettes readFolders(Session& session, const std::vector<std::string>& folders,
                           Stylesheets stylesheets);

} // namespace tintra::cli
