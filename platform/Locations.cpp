#include "platform/Locations.h"

#include <cstdlib>
#include <string_view>
#include <system_error>

namespace tintra {

namespace {

namespace fs = std::filesystem;

std::string_view environment(const char* name) {
    const char* value = std::getenv(name); // NOLINT(concurrency-mt-unsafe): nobody sets it
    return value == nullptr ? std::string_view() : std::string_view(value);
}

/// The standard tells programs to pass over relative folders.
void addAbsolute(std::vector<fs::path>& folders, const fs::path& folder) {
    if (folder.is_absolute()) folders.push_back(folder);
}

/// The folder that a variable names, else the usual one below the home folder; relative ones do not
/// count, so that no home folder means no folder.
fs::path userFolder(const char* variable, const char* usual) {
    if (fs::path named = environment(variable); named.is_absolute()) return named;
    const auto home = homeFolder();
    return home.is_absolute() ? home / usual : fs::path();
}

fs::path ofTintra(const fs::path& folder) {
    return folder.empty() ? folder : folder / "tintra";
}

/// The folder above the one of the running program, whether that is installed or just built.
fs::path installation() {
    std::error_code failed;
    return fs::read_symlink("/proc/self/exe", failed).parent_path().parent_path();
}

} // namespace

fs::path homeFolder() {
    return {environment("HOME")};
}

fs::path configFolder() {
    return ofTintra(userFolder("XDG_CONFIG_HOME", ".config"));
}

fs::path stateFolder() {
    return ofTintra(userFolder("XDG_STATE_HOME", ".local/state"));
}

fs::path dataHome() {
    return userFolder("XDG_DATA_HOME", ".local/share");
}

std::vector<fs::path> dataFolders() {
    std::vector<fs::path> folders;
    addAbsolute(folders, dataHome());
    auto system = environment("XDG_DATA_DIRS");
    if (system.empty()) system = "/usr/local/share:/usr/share";
    while (!system.empty()) {
        const auto colon = std::min(system.find(':'), system.size());
        addAbsolute(folders, system.substr(0, colon));
        system.remove_prefix(std::min(colon + 1, system.size()));
    }
    return folders;
}

fs::path shippedFile(const fs::path& name) {
    return installation() / "share/tintra" / name;
}

fs::path shippedModule(const fs::path& name) {
    return installation() / "lib/tintra" / name;
}

} // namespace tintra
