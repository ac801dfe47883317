#include "palettes/DrawingPrograms.h"

#include "palettes/SystemPalettes.h"
#include "platform/Locations.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tintra {

namespace {

namespace fs = std::filesystem;

enum class UserFolder { config, data };

/// Where a program keeps palettes: below one of the user's folders, and below the data folders of
/// all users.
struct ProgramRow {
    std::string_view title;
    UserFolder in;
    std::string_view own, ofAllUsers;
};
constexpr std::array kPrograms{
    ProgramRow{"GIMP 2.10", UserFolder::config, "GIMP/2.10/palettes", "gimp/2.0/palettes"},
    ProgramRow{"GIMP 3.0", UserFolder::config, "GIMP/3.0/palettes", "gimp/3.0/palettes"},
    ProgramRow{"Inkscape", UserFolder::config, "inkscape/palettes", "inkscape/palettes"},
    ProgramRow{"Krita", UserFolder::data, "krita/palettes", "krita/palettes"},
};

} // namespace

std::vector<InstallTarget> drawingPrograms() {
    std::vector<InstallTarget> targets;
    for (const auto& program : kPrograms) {
        const auto folder =
            program.in == UserFolder::data ? dataHome() : configFolder().parent_path();
        if (folder.is_absolute())
            targets.push_back({std::string(program.title), folder / program.own});
    }
    return targets;
}

std::vector<fs::path> systemPaletteFolders() {
    std::vector<fs::path> folders;
    for (const auto& data : dataFolders()) {
        if (data == dataHome()) continue;
        for (const auto& program : kPrograms)
            if (const auto folder = data / program.ofAllUsers;
                std::ranges::find(folders, folder) == folders.end())
                folders.push_back(folder);
    }
    return folders;
}

} // namespace tintra
