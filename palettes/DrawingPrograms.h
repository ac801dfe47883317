#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tintra {

/// A folder of drawing programs into which palettes can be put ("Install for…").
struct InstallTarget {
    std::string title; ///< "GIMP 2.10"
    std::filesystem::path folder;
    bool operator==(const InstallTarget&) const = default;
};

/// The user's palette folders of the drawing programs that read GIMP palettes, in the order of
/// menus; need not exist.
std::vector<InstallTarget> drawingPrograms();

} // namespace tintra
