#pragma once

#include "platform/Toasts.h"
#include "platform/Uuid.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tintra {

class Preferences;
struct PaletteLocation;
struct Services;

/// Edits the folders that the Library watches, with the questions and notices of one window. An
/// answer that comes after its end changes nothing. Main loop.
class PaletteLocations {
public:
    PaletteLocations(Services& services, Preferences& preferences, ToastPlace place);

    /// Asks for a folder, then watches it.
    void add();
    /// A folder that is already watched, by whatever path, is refused with a notice.
    void add(const std::filesystem::path& folder);
    /// The same of every folder among files that were dropped; without any it says so.
    void addFolders(std::vector<std::filesystem::path> among);
    void remove(const Uuid& id);
    /// Asks where the folder is now.
    void rechoose(const Uuid& id);
    /// Asks for another nickname; a blank one changes nothing.
    void rename(const Uuid& id);
    /// Asks for the label.
    void tag(const Uuid& id);
    void untag(const Uuid& id);
    void setEnabled(const Uuid& id, bool enabled);
    void setIncludesStylesheets(const Uuid& id, bool includes);
    /// Shows the folder in the file browser.
    void reveal(const Uuid& id) const;

    /// None for one that is no longer watched.
    std::optional<PaletteLocation> location(const Uuid& id) const;

private:
    void append(const std::filesystem::path& folder);
    void change(const Uuid& id, const std::function<void(PaletteLocation&)>& by);
    /// Goes on when no location but `except` watches the folder; otherwise says so.
    void whenUnwatched(const std::filesystem::path& folder, std::optional<Uuid> except,
                       std::function<void()> then);

    Services& services_;
    Preferences& preferences_;
    ToastPlace place_;
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};

} // namespace tintra
