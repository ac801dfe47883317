#include "state/LibraryFiles.h"

#include "platform/Dialogues.h"
#include "platform/FileBrowser.h"
#include "platform/Services.h"
#include "platform/Unicode.h"
#include "state/Errands.h"
#include "state/NoticeTexts.h"
#include "state/PaletteQuestions.h"
#include "state/Preferences.h"
#include "state/SaveTexts.h"
#include "state/Workspaces.h"

#include <utility>
#include <variant>

namespace tintra {

using namespace SaveTexts;
using Clash = PaletteStore::Clash;

namespace {

/// As notices and questions call it: a file by its whole name.
std::string fileNameOf(const PaletteEntry& entry) {
    return entry.url.empty() ? entry.name : entry.url.filename().string();
}

std::string nameOf(const std::string& key) {
    return std::filesystem::path(key).filename().string();
}

} // namespace

LibraryFiles::LibraryFiles(Services& services, Preferences& preferences, PaletteStore& store,
                           Workspaces& workspaces, ToastPlace place)
    : services_(services), preferences_(preferences), store_(store), workspaces_(workspaces),
      place_(place) {}

bool LibraryFiles::canOpen(const PaletteEntry& entry) {
    // One that is being read is read again to be opened.
    return entry.state != PaletteEntry::State::unreadable;
}

void LibraryFiles::say(std::string text, double seconds, std::optional<ToastAction> action) const {
    services_.toasts.show(std::move(text), seconds, std::move(action), place_);
}

const PaletteEntry* LibraryFiles::entry(const std::string& key, bool toBeRead) const {
    const auto* found = store_.entry(key);
    if (found && (!toBeRead || canOpen(*found))) return found;
    say(unreadableText(found ? fileNameOf(*found) : nameOf(key)), kForCounts);
    return nullptr;
}

LibraryFiles::Content LibraryFiles::contentOf(const PaletteEntry& entry) {
    Content content;
    if (!entry.palette) return content;
    for (const auto& swatch : entry.palette->swatches) {
        content.colors.push_back(swatch.color);
        content.names.push_back(swatch.name);
    }
    return content;
}

void LibraryFiles::open(const std::string& key) {
    const auto* found = entry(key, true);
    if (!found) return;
    const auto opened = *found; // a window that is made may change the list
    auto* to = workspaces_.front();
    if (!to) to = &workspaces_.openPrimary();
    if (const auto& show = preferences_.windows.openNewWindow) show(to->id());
    const bool isShown = !opened.url.empty() && to->currentPaletteURL() == opened.url;
    if (!isShown || to->paletteIsDirty().value()) to->loadPalette(opened);
}

void LibraryFiles::openInNewWindow(const std::string& key) {
    const auto* found = entry(key, true);
    if (!found) return;
    const auto opened = *found;
    workspaces_.openExtra().loadPalette(opened);
}

void LibraryFiles::duplicate(const std::string& key) {
    const auto* found = entry(key, false);
    if (!found) return;
    services_.dialogues.askName(
        PaletteQuestions::copyName(store_, *found, found->name, place_),
        whileAlive(alive_, [this, key](const std::optional<NameAnswer>& answer) {
            if (answer) copyAs(key, std::string(trimmed(answer->name)));
        }));
}

void LibraryFiles::copyAs(const std::string& key, const std::string& name) {
    const auto* found = entry(key, false);
    if (!found) return;
    const auto original = found->name;
    if (store_.duplicate(PaletteEntry(*found), name))
        say(couldNotDuplicateText(original), kForCounts);
    else
        say(duplicatedText(original, name), kBriefly);
}

void LibraryFiles::trash(const std::string& key) {
    const auto* found = entry(key, false);
    if (!found) return;
    const auto file = fileNameOf(*found);
    const auto result = store_.trash(*found);
    if (const auto* const error = std::get_if<FileError>(&result)) {
        say(couldNotText(file, "moved to the Trash", error->why), kForCounts);
        return;
    }
    // The file comes back also when the window is gone.
    say(trashedText(file), kForCounts,
        ToastAction{"Undo", [&store = store_, &services = services_, at = place_, file,
                             trashed = std::get<TrashedFile>(result)] {
                        if (const auto error = store.putBack(trashed))
                            services.toasts.show(couldNotText(file, "put back", error->why),
                                                 kForCounts, {}, at);
                    }});
}

void LibraryFiles::reveal(const std::string& key) {
    const auto* found = entry(key, false);
    if (found && canReveal(*found)) services_.fileBrowser.reveal(found->url);
}

void LibraryFiles::installInColourPicker(const std::string& key) {
    const auto install = [this, key](const std::string& as, Clash clash) {
        const auto* found = entry(key, true);
        if (!found) return;
        const auto [colors, names] = contentOf(*found);
        PaletteQuestions::sayInstalled(services_, workspaces_, place_, as,
                                       store_.save(colors, names, as, clash), savedToPickerText);
    };
    PaletteQuestions::withColorsFolder(
        services_, preferences_, store_, place_, alive_, [this, key, install](bool granted) {
            const auto* found = granted ? entry(key, true) : nullptr;
            if (found)
                PaletteQuestions::askInstallName(services_, PaletteQuestions::installName(store_),
                                                 found->name, place_, alive_, install);
        });
}

void LibraryFiles::installFor(const std::string& key, const InstallTarget& target) {
    const auto* named = entry(key, true);
    if (!named) return;
    PaletteQuestions::askInstallName(
        services_, PaletteQuestions::installName(target), named->name, place_, alive_,
        [this, key, target](const std::string& as, Clash clash) {
            const auto* found = entry(key, true);
            if (!found) return;
            const auto [colors, names] = contentOf(*found);
            PaletteQuestions::sayInstalled(
                services_, workspaces_, place_, as,
                store_.install(colors, names, as, target, clash),
                [&](std::string_view name) { return installedText(name, target.title); });
        });
}

} // namespace tintra
