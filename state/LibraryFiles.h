#pragma once

#include "palettes/PaletteStore.h"
#include "platform/Toasts.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tintra {

class Preferences;
class Workspaces;
struct Services;

/// What the Library does with a palette that it lists, with the questions and notices of one
/// window. Palettes go by their keys; of one that is not listed any more it is said that it could
/// not be read. An answer that comes after its end changes nothing. Main loop.
class LibraryFiles {
public:
    LibraryFiles(Services& services, Preferences& preferences, PaletteStore& store,
                 Workspaces& workspaces, ToastPlace place);

    /// In the palette window used last, which comes to the front; a new one when there is none.
    void open(const std::string& key);
    void openInNewWindow(const std::string& key);

    /// Asks for the name.
    void duplicate(const std::string& key);
    /// The notice offers to put it back.
    void trash(const std::string& key);
    void reveal(const std::string& key);
    /// Asks for the name.
    void installInColourPicker(const std::string& key);
    void installFor(const std::string& key, const InstallTarget& target);

    // What can be done with a palette.
    static bool canOpen(const PaletteEntry& entry);
    static bool canReveal(const PaletteEntry& entry) { return !entry.url.empty(); }
    static bool canTrash(const PaletteEntry& entry) {
        return entry.isEditable && !entry.url.empty();
    }

private:
    /// Says so when there is no such entry, or, when it has to be read, none that could be.
    const PaletteEntry* entry(const std::string& key, bool toBeRead) const;
    void copyAs(const std::string& key, const std::string& name);
    void say(std::string text, double seconds, std::optional<ToastAction> action = {}) const;

    Services& services_;
    Preferences& preferences_;
    PaletteStore& store_;
    Workspaces& workspaces_;
    ToastPlace place_;
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};

} // namespace tintra
