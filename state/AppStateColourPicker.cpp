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

struct AppState::Installing {
    static void saveInPicker(AppState& state, std::string_view as, Clash clash, const Said& said,
                             const Done& done);
    /// Asks when there is a list of that name. Nothing is answered for Cancel.
    static void askAboutClash(AppState& state, std::string_view name,
                              std::function<void(std::optional<Clash>)> answered);
    static void withColorsFolder(AppState& state, std::function<void(bool granted)> then);
    static void askWhatToInstallAs(AppState& state, NameQuestion question,
                                   std::function<void(std::string, Clash)> then);
    static NameQuestion::Clash replaceOrKeepBoth(std::string_view text);
    static void install(AppState& state, const std::string& as, Clash clash);
    static void installCopy(AppState& state, const std::string& as, Clash clash);
    static void installInto(AppState& state, const InstallTarget& target, const std::string& as,
                            Clash clash);
    static void askToRenameList(AppState& state, const std::string& as, Clash clash);
    static void renameList(AppState& state, const std::string& as, Clash clash);
    static void sayInstalled(AppState& state, const std::string& as,
                             const std::variant<PaletteStore::Saved, FileError>& result,
                             const Said& said);
};

namespace {

void tell(const AppState::Done& done, bool saved) {
    if (done) done(saved);
}

} // namespace

void AppState::savePalette(std::string_view as, Clash clash, const Done& done) {
    Installing::saveInPicker(*this, as, clash, savedToPickerText, done);
}

void AppState::saveInPickerAsking(const std::string& as, Said said, Done done) {
    Installing::withColorsFolder(*this, [this, as, said = std::move(said),
                                         done = std::move(done)](bool granted) {
        if (!granted) {
            tell(done, false);
            return;
        }
        Installing::askAboutClash(*this, as, [this, as, said, done](std::optional<Clash> clash) {
            if (clash)
                Installing::saveInPicker(*this, as, *clash, said, done);
            else
                tell(done, false);
        });
    });
}

void AppState::Installing::saveInPicker(AppState& state, std::string_view as, Clash clash,
                                        const Said& said, const Done& done) {
    if (state.swatches().empty()) {
        state.toast(std::string(kNoSwatches), kForCounts);
        tell(done, false);
        return;
    }
    const auto result = state.context_.store.save(state.colors(), state.names(), as, clash);
    if (const auto* const error = std::get_if<FileError>(&result)) {
        state.toast(couldNotText(as, "saved", error->why), kForCounts);
        tell(done, false);
        return;
    }
    const auto& list = std::get<PaletteStore::Saved>(result);
    auto text = said(list.name);
    if (list.oldIsInTrash) text += kOldListInTrash;
    state.keep({list.name, list.file}, state.paletteVersion_.value());
    state.toast(std::move(text), kForCounts);
    tell(done, true);
}

void AppState::Installing::askAboutClash(AppState& state, std::string_view name,
                                         std::function<void(std::optional<Clash>)> answered) {
    if (!state.context_.store.hasNamed(name)) {
        answered(Clash::keepBoth);
        return;
    }
    Question question{replaceTitle(name),
                      std::string(kListExists),
                      {std::string(kReplace), std::string(kKeepBoth), std::string(kCancel)},
                      state.place()};
    state.context_.services.dialogues.ask(
        std::move(question),
        whileAlive(state.alive_, [answered = std::move(answered)](std::size_t button) {
            if (button > 1)
                answered(std::nullopt);
            else
                answered(button == 0 ? Clash::replace : Clash::keepBoth);
        }));
}

void AppState::Installing::withColorsFolder(AppState& state,
                                            std::function<void(bool granted)> then) {
    if (state.context_.store.writableColorsFolder()) {
        then(true);
        return;
    }
    state.context_.services.dialogues.askWhatToOpen(
        {OpenQuestion::Of::folder, std::string(kInstallOnce), state.place()},
        whileAlive(state.alive_, [&state, then = std::move(then)](
                                     const std::optional<std::filesystem::path>& folder) {
            if (folder) {
                const auto path = asBytes(folder->native());
                state.context_.preferences.colorsFolderBookmark = Bytes(path.begin(), path.end());
            }
            then(folder.has_value());
        }));
}

// Installing

NameQuestion::Clash AppState::Installing::replaceOrKeepBoth(std::string_view text) {
    return {std::string(text), {std::string(kReplace), std::string(kKeepBoth)}};
}

void AppState::Installing::askWhatToInstallAs(AppState& state, NameQuestion question,
                                              std::function<void(std::string, Clash)> then) {
    if (state.swatches().empty()) {
        state.toast(std::string(kNoSwatches), kForCounts);
        return;
    }
    question.proposal = state.title();
    question.button = "Install";
    question.refusal = whyUnfit;
    question.over = state.place();
    state.context_.services.dialogues.askName(
        std::move(question),
        whileAlive(state.alive_, [then = std::move(then)](const std::optional<NameAnswer>& answer) {
            if (!answer) return;
            // Without a clash nothing is replaced, whatever has come there meanwhile.
            then(std::string(trimmed(answer->name)),
                 answer->button == 0U ? Clash::replace : Clash::keepBoth);
        }));
}
void AppState::installInColourPicker() {
    Installing::withColorsFolder(*this, [this](bool granted) {
        if (!granted) return;
        NameQuestion question;
        question.title = "Install in the colour picker as";
        question.note = kInstallNote;
        question.clash = [this](std::string_view name) -> std::optional<NameQuestion::Clash> {
            const bool isOwn = home() == Home::colourPicker && trimmed(name) == title();
            if (isOwn || !context_.store.hasNamed(trimmed(name))) return std::nullopt;
            return Installing::replaceOrKeepBoth(kListExists);
        };
        Installing::askWhatToInstallAs(
            *this, std::move(question),
            [this](const std::string& as, Clash clash) { Installing::install(*this, as, clash); });
    });
}

void AppState::Installing::install(AppState& state, const std::string& as, Clash clash) {
    if (state.home() == Home::colourPicker && as == state.title())
        state.savePalette();
    else if (state.home() == Home::colourPicker)
        askToRenameList(state, as, clash);
    else if (state.home() == Home::nowhere)
        state.savePalette(as, clash);
    else
        installCopy(state, as, clash);
}

void AppState::Installing::askToRenameList(AppState& state, const std::string& as, Clash clash) {
    Question question{renameListTitle(state.title(), as),
                      renameListText(state.title()),
                      {std::string(kRename), std::string(kKeepBoth), std::string(kCancel)},
                      state.place()};
    state.context_.services.dialogues.ask(
        std::move(question), whileAlive(state.alive_, [&state, as, clash](std::size_t button) {
            if (button == 0)
                renameList(state, as, clash);
            else if (button == 1)
                installCopy(state, as, clash);
        }));
}

void AppState::Installing::renameList(AppState& state, const std::string& as, Clash clash) {
    const auto old = state.entryOfFile();
    state.savePalette(as, clash, [&state, old](bool saved) {
        if (!saved) return;
        const auto trashed = state.context_.store.trash(old);
        if (const auto* const error = std::get_if<FileError>(&trashed))
            state.toast(couldNotText(old.name, "moved to the Trash", error->why), kForCounts);
        else
            state.toast(savedToPickerText(state.title()) + std::string(kOldListInTrash),
                        kForCounts);
    });
}

void AppState::Installing::installCopy(AppState& state, const std::string& as, Clash clash) {
    const auto result = state.context_.store.save(state.colors(), state.names(), as, clash);
    sayInstalled(state, as, result, savedToPickerText);
}

void AppState::Installing::sayInstalled(AppState& state, const std::string& as,
                                        const std::variant<PaletteStore::Saved, FileError>& result,
                                        const Said& said) {
    if (const auto* const error = std::get_if<FileError>(&result)) {
        state.toast(couldNotText(as, "saved", error->why), kForCounts);
        return;
    }
    const auto& saved = std::get<PaletteStore::Saved>(result);
    auto text = said(saved.name);
    if (saved.oldIsInTrash) text += kOldListInTrash;
    // It may have replaced the list that a window shows.
    static_cast<void>(state.context_.windows.saved(saved.file));
    state.toast(std::move(text), kForCounts);
}

void AppState::installFor(const InstallTarget& target) {
    NameQuestion question;
    question.title = installForTitle(target.title);
    question.note = target.folder.string();
    question.clash =
        [folder = target.folder](std::string_view name) -> std::optional<NameQuestion::Clash> {
        std::error_code ignored;
        if (!std::filesystem::exists(folder / (fitFileName(name) + ".gpl"), ignored))
            return std::nullopt;
        return Installing::replaceOrKeepBoth(kPaletteExists);
    };
    Installing::askWhatToInstallAs(*this, std::move(question),
                                   [this, target](const std::string& as, Clash clash) {
                                       Installing::installInto(*this, target, as, clash);
                                   });
}

void AppState::Installing::installInto(AppState& state, const InstallTarget& target,
                                       const std::string& as, Clash clash) {
    sayInstalled(state, as,
                 state.context_.store.install(state.colors(), state.names(), as, target, clash),
                 [&](std::string_view name) { return installedText(name, target.title); });
}

} // namespace tintra
