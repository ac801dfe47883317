#pragma once

#include <filesystem>
#include <vector>

namespace tintra {

/// The user's home folder; empty when the system names none.
std::filesystem::path homeFolder();

/// The user's folders of the program (XDG Base Directory: XDG_CONFIG_HOME, XDG_STATE_HOME, else
/// `.config` and `.local/state` of the home folder; `tintra` in each): for settings, and for what
/// the program remembers by itself. Empty when the system names no home folder. Need not exist.
std::filesystem::path configFolder();
std::filesystem::path stateFolder();

/// The user's folder for data of all programs (XDG_DATA_HOME, else `.local/share` of the home
/// folder). Empty when the system names no home folder. Need not exist.
std::filesystem::path dataHome();

/// The user's and then the system's folders for data (XDG Base Directory: XDG_DATA_HOME, then
/// XDG_DATA_DIRS), absolute ones only, most preferred first.
std::vector<std::filesystem::path> dataFolders();

/// A file shipped with the program, in `share/tintra` beside the folder of the running program,
/// whether it is installed or stands in a build folder.
std::filesystem::path shippedFile(const std::filesystem::path& name);

/// A library that the program loads while running, in `lib/tintra` beside its folder.
std::filesystem::path shippedModule(const std::filesystem::path& name);

} // namespace tintra
