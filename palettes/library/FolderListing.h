#pragma once

#include "platform/FileStamp.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

namespace tintra {

/// A file of a folder that may be a palette.
struct ListedFile {
    std::filesystem::path path;
    FileStamp stamp;
    std::string sortKey;       ///< of its name without extension; see platform/Unicode.h
    bool isStylesheet = false; ///< whether it is a palette shows when it is read
    bool isWritable = false;   ///< it may be replaced and removed
};

/// What stood in a folder when it was listed.
struct FolderListing {
    std::error_code failed;        ///< why the folder could not be listed, if so
    std::vector<ListedFile> files; ///< sorted as a file browser sorts names
};

enum class Listed { palettes, palettesAndStylesheets, colourLists };

/// The files directly in a folder whose extension is that of a palette. Hidden ones, links in a
/// circle and what is no regular file are passed over. No file is opened. Any thread.
FolderListing listFolder(const std::filesystem::path& folder, Listed listed);

} // namespace tintra
