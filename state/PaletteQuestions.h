#pragma once

#include "palettes/PaletteStore.h"
#include "platform/Dialogues.h"
#include "platform/Toasts.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

// What is asked, and said afterwards, when a palette is copied or installed, whichever window it is
// done from. `alive` is the token of whoever asks: answers that come after its end are dropped.
// Main loop.

namespace tintra {

class PaletteWindows;
class Preferences;
struct Services;

namespace PaletteQuestions {

/// Why a copy of an entry may not have that name; nothing when it may. The store outlives it.
std::function<std::optional<std::string>(std::string_view name)>
refusalOfName(const PaletteStore& store, PaletteEntry entry);
/// What a copy of an entry is to be called. `shown`: the name by which the user knows it.
NameQuestion copyName(const PaletteStore& store, const PaletteEntry& entry,
                      const std::string& shown, ToastPlace over);

/// Asks, where that is needed, for the folder of the colour picker's lists.
void withColorsFolder(Services& services, Preferences& preferences, const PaletteStore& store,
                      ToastPlace over, const std::shared_ptr<bool>& alive,
                      std::function<void(bool granted)> then);

/// What a list of the colour picker, or a palette of a drawing program, is to be called.
NameQuestion installName(const PaletteStore& store);
NameQuestion installName(const InstallTarget& into);
/// Asks one of these.
void askInstallName(Services& services, NameQuestion question, std::string proposal,
                    ToastPlace over, const std::shared_ptr<bool>& alive,
                    std::function<void(std::string as, PaletteStore::Clash clash)> then);

/// Shows the notice about what became of an installation, also when whoever asked is gone by then;
/// `said` tells it of a name. Windows that show the file learn that it was replaced. Services and
/// windows outlive the store.
PaletteStore::SaveDone sayInstalled(Services& services, PaletteWindows& windows, ToastPlace over,
                                    std::string_view as,
                                    std::function<std::string(std::string_view name)> said);

/// Shows the notice about what became of a file that was to go to the Trash. It offers to put the
/// file back, also when whoever asked is gone by then. `went` and `back` are told of either.
PaletteStore::TrashDone sayTrashed(Services& services, PaletteStore& store, ToastPlace over,
                                   std::string file, std::function<void()> went,
                                   std::function<void()> back);

} // namespace PaletteQuestions
} // namespace tintra
