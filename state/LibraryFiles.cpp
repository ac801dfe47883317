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

PaletteStore::Content contentOf(const PaletteEntry& entry) {
    return entry.palette ? PaletteStore::Content::of(entry.palette->swatches)
                         : PaletteStore::Content();
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
    store_.duplicate(*found, name,
                     [&services = services_, place = place_, original = found->name,
                      name](const std::optional<FileError>& error) {
                         services.toasts.show(error ? couldNotDuplicateText(original)
                                                    : duplicatedText(original, name),
                                              error ? kForCounts : kBriefly, {}, place);
                     });
}

void LibraryFiles::trash(const std::string& key) {
    const auto* found = entry(key, false);
    if (!found) return;
    const auto nothing = [] {};
    store_.trash(*found, PaletteQuestions::sayTrashed(services_, store_, place_, fileNameOf(*found),
                                                      nothing, nothing));
}

void LibraryFiles::reveal(const std::string& key) {
    const auto* found = entry(key, false);
    if (found && canReveal(*found)) services_.fileBrowser.reveal(found->url);
}

void LibraryFiles::installInColourPicker(const std::string& key) {
    const auto install = [this, key](const std::string& as, Clash clash) {
        const auto* found = entry(key, true);
        if (!found) return;
        store_.save(
            contentOf(*found), as, clash,
            PaletteQuestions::sayInstalled(services_, workspaces_, place_, as, savedToPickerText));
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
            store_.install(contentOf(*found), as, target, clash,
                           PaletteQuestions::sayInstalled(
                               services_, workspaces_, place_, as, [target](std::string_view name) {
                                   return installedText(name, target.title);
                               }));
        });
}

} // namespace tintra
