#pragma once

#include "platform/Bytes.h"
#include "platform/Uuid.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tintra {

/// A folder that the Library watches. Files in it are read, never changed.
struct PaletteLocation {
    Uuid id;
    std::string nickname; ///< heads its palettes
    std::filesystem::path path;
    std::optional<std::string> tag; ///< a short label shown with it
    bool isEnabled = true;          ///< it is listed
    bool includesStylesheets = false;
    /// Access across runs on platforms that ask for it; kept as it is where the path is the access.
    std::optional<Bytes> bookmark;

    const std::filesystem::path& url() const { return path; }
    /// Whether the folder can be listed now.
    bool isOnline() const;
    /// The palette files directly in the folder, sorted by name; empty when it is not online. A
    /// link in a circle and what is no regular file are passed over.
    std::vector<std::filesystem::path> files() const;

    bool operator==(const PaletteLocation&) const = default;
};

/// The palette files directly in a folder, as `PaletteLocation::files` answers them.
std::vector<std::filesystem::path> paletteFiles(const std::filesystem::path& in,
                                                bool includingStylesheets);

} // namespace tintra
