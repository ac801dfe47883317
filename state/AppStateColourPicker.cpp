#include "palettes/FileNames.h"
#include "platform/Dialogues.h"
#include "platform/Unicode.h"
#include "state/AppState.h"
#include "state/Errands.h"
#include "state/NoticeTexts.h"
#include "state/Preferences.h"
#include "state/SaveTexts.h"

#include <utility>

// Palettes as colour lists of the system colour picker, and in the folders of drawing programs.

namespace tintra {

using namespace SaveTexts;
using Clash = PaletteStore::Clash;

namespace {

void tell(const AppState::Done& done, bool saved) {
    if (done) done(saved);
}

} // namespace

void AppState::savePalette(std::string_view as, Clash clash, Done done) {
    saveInPicker(as, clash, savedToPickerText, std::move(done));
}

void AppState::saveInPickerAsking(const std::string& as, Said said, Done done) {
    withColorsFolder([this, as, said, done = std::move(done)](bool granted) {
        if (!granted) {
            tell(done, false);
            return;
        }
        askAboutClash(as, [this, as, said, done](std::optional<Clash> clash) {
            if (clash)
                saveInPicker(as, *clash, said, done);
            else
                tell(done, false);
        });
    });
}

void AppState::saveInPicker(std::string_view as, Clash clash, const Said& said, Done done) {
    if (swatches().empty()) {
        toast(std::string(kNoSwatches), kForCounts);
        tell(done, false);
        return;
    }
    const auto result = context_.store.save(colors(), names(), as, clash);
    if (const auto* const error = std::get_if<FileError>(&result)) {
        toast(couldNotText(as, "saved", error->why), kForCounts);
        tell(done, false);
        return;
    }
    const auto& list = std::get<PaletteStore::Saved>(result);
    auto text = said(list.name);
    if (list.oldIsInTrash) text += kOldListInTrash;
    keep({list.name, list.file}, paletteVersion_.value());
    toast(std::move(text), kForCounts);
    tell(done, true);
}

void AppState::askAboutClash(std::string_view name,
                             std::function<void(std::optional<Clash>)> answered) {
    if (!context_.store.hasNamed(name)) {
        answered(Clash::keepBoth);
        return;
    }
    askToReplace(name, kListExists, std::move(answered));
}

void AppState::askToReplace(std::string_view name, std::string_view text,
                            std::function<void(std::optional<Clash>)> answered) {
    Question question{replaceTitle(name),
                      std::string(text),
                      {std::string(kReplace), std::string(kKeepBoth), std::string(kCancel)},
                      place()};
    context_.services.dialogues.ask(
        std::move(question),
        whileAlive(alive_, [answered = std::move(answered)](std::size_t button) {
            if (button > 1)
                answered(std::nullopt);
            else
                answered(button == 0 ? Clash::replace : Clash::keepBoth);
        }));
}

void AppState::withColorsFolder(std::function<void(bool granted)> then) {
    if (context_.store.writableColorsFolder()) {
        then(true);
        return;
    }
    context_.services.dialogues.askWhatToOpen(
        {OpenQuestion::Of::folder, std::string(kInstallOnce), place()},
        whileAlive(alive_, [this, then = std::move(then)](
                               const std::optional<std::filesystem::path>& folder) {
            if (folder) {
                const auto path = asBytes(folder->native());
                context_.preferences.colorsFolderBookmark = Bytes(path.begin(), path.end());
            }
            then(folder.has_value());
        }));
}

// Installing

void AppState::askWhatToInstallAs(std::string title, std::string note,
                                  std::function<void(std::string)> then) {
    if (swatches().empty()) {
        toast(std::string(kNoSwatches), kForCounts);
        return;
    }
    context_.services.dialogues.askName(
        {std::move(title), std::move(note), this->title(), "Install", whyUnfit, place()},
        whileAlive(alive_, [then = std::move(then)](const std::optional<std::string>& name) {
            if (name) then(std::string(trimmed(*name)));
        }));
}

void AppState::installInColourPicker() {
    withColorsFolder([this](bool granted) {
        if (granted)
            askWhatToInstallAs("Install in the colour picker as", std::string(kInstallNote),
                               [this](const std::string& as) { install(as); });
    });
}

void AppState::install(const std::string& as) {
    if (home() == Home::colourPicker && as == title()) {
        savePalette();
        return;
    }
    askAboutClash(as, [this, as](std::optional<Clash> clash) {
        if (!clash) return;
        if (home() == Home::colourPicker)
            askToRenameList(as, *clash);
        else if (home() == Home::nowhere)
            savePalette(as, *clash);
        else
            installCopy(as, *clash);
    });
}

void AppState::askToRenameList(const std::string& as, Clash clash) {
    Question question{renameListTitle(title(), as),
                      renameListText(title()),
                      {std::string(kRename), std::string(kKeepBoth), std::string(kCancel)},
                      place()};
    context_.services.dialogues.ask(std::move(question),
                                    whileAlive(alive_, [this, as, clash](std::size_t button) {
                                        if (button == 0)
                                            renameList(as, clash);
                                        else if (button == 1)
                                            installCopy(as, clash);
                                    }));
}

void AppState::renameList(const std::string& as, Clash clash) {
    const auto old = entryOfFile();
    savePalette(as, clash, [this, old](bool saved) {
        if (!saved) return;
        const auto trashed = context_.store.trash(old);
        if (const auto* const error = std::get_if<FileError>(&trashed))
            toast(couldNotText(old.name, "moved to the Trash", error->why), kForCounts);
        else
            toast(savedToPickerText(title()) + std::string(kOldListInTrash), kForCounts);
    });
}

void AppState::installCopy(const std::string& as, Clash clash) {
    const auto result = context_.store.save(colors(), names(), as, clash);
    sayInstalled(as, result, savedToPickerText);
}

void AppState::sayInstalled(const std::string& as,
                            const std::variant<PaletteStore::Saved, FileError>& result,
                            const Said& said) {
    if (const auto* const error = std::get_if<FileError>(&result)) {
        toast(couldNotText(as, "saved", error->why), kForCounts);
        return;
    }
    const auto& saved = std::get<PaletteStore::Saved>(result);
    auto text = said(saved.name);
    if (saved.oldIsInTrash) text += kOldListInTrash;
    // It may have replaced the list that a window shows.
    static_cast<void>(context_.windows.saved(saved.file));
    toast(std::move(text), kForCounts);
}

void AppState::installFor(const InstallTarget& target) {
    askWhatToInstallAs(installForTitle(target.title), target.folder.string(),
                       [this, target](const std::string& as) { installFor(target, as); });
}

void AppState::installFor(const InstallTarget& target, const std::string& as) {
    const auto install = [this, target, as](std::optional<Clash> clash) {
        if (!clash) return;
        sayInstalled(as, context_.store.install(colors(), names(), as, target, *clash),
                     [&](std::string_view name) { return installedText(name, target.title); });
    };
    std::error_code ignored;
    if (std::filesystem::exists(target.folder / (fitFileName(as) + ".gpl"), ignored))
        askToReplace(as, kPaletteExists, install);
    else
        install(Clash::keepBoth);
}

} // namespace tintra
