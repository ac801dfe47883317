#include "platform/Dialogues.h"
#include "platform/Unicode.h"
#include "state/AppState.h"
#include "state/Errands.h"
#include "state/NoticeTexts.h"
#include "state/PaletteQuestions.h"
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
    static void install(AppState& state, const std::string& as, Clash clash);
    static void installCopy(AppState& state, const std::string& as, Clash clash);
    static void installInto(AppState& state, const InstallTarget& target, const std::string& as,
                            Clash clash);
    static void askToRenameList(AppState& state, const std::string& as, Clash clash);
    static void renameList(AppState& state, const std::string& as, Clash clash);
    static PaletteStore::SaveDone sayInstalled(const AppState& state, std::string_view as,
                                               Said said);
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
    const auto turn = state.contentTurn_;
    const auto version = state.paletteVersion_.value();
    state.context_.store.save(
        {state.colors(), state.names()}, as, clash,
        whileAlive(state.alive_, [&state, as = std::string(as), said, done, turn, version,
                                  before = state.attachment_.value()](
                                     const std::variant<PaletteStore::Saved, FileError>& result) {
            if (const auto* const error = std::get_if<FileError>(&result)) {
                state.toast(couldNotText(as, "saved", error->why), kForCounts);
                tell(done, false);
                return;
            }
            const auto& list = std::get<PaletteStore::Saved>(result);
            // The window may show another palette by now.
            if (turn == state.contentTurn_ && before == state.attachment_.value())
                state.keep({list.name, list.file}, version);
            else
                static_cast<void>(state.context_.windows.saved(list.file));
            state.toast(said(list.name) + std::string(list.oldIsInTrash ? kOldListInTrash : ""),
                        kForCounts);
            tell(done, true);
        }));
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
    const auto& context = state.context_;
    PaletteQuestions::withColorsFolder(context.services, context.preferences, context.store,
                                       state.place(), state.alive_, std::move(then));
}

// Installing

void AppState::Installing::askWhatToInstallAs(AppState& state, NameQuestion question,
                                              std::function<void(std::string, Clash)> then) {
    if (state.swatches().empty()) {
        state.toast(std::string(kNoSwatches), kForCounts);
        return;
    }
    PaletteQuestions::askInstallName(state.context_.services, std::move(question), state.title(),
                                     state.place(), state.alive_, std::move(then));
}

void AppState::installInColourPicker() {
    Installing::withColorsFolder(*this, [this](bool granted) {
        if (!granted) return;
        auto question = PaletteQuestions::installName(context_.store);
        question.clash = [this, any = std::move(question.clash)](
                             std::string_view name) -> std::optional<NameQuestion::Clash> {
            const bool isOwn = home() == Home::colourPicker && trimmed(name) == title();
            return isOwn ? std::nullopt : any(name);
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
        state.context_.store.trash(
            old, whileAlive(state.alive_, [&state, old](
                                              const std::variant<TrashedFile, FileError>& trashed) {
                if (const auto* const error = std::get_if<FileError>(&trashed))
                    state.toast(couldNotText(old.name, "moved to the Trash", error->why),
                                kForCounts);
                else
                    state.toast(savedToPickerText(state.title()) + std::string(kOldListInTrash),
                                kForCounts);
            }));
    });
}

void AppState::Installing::installCopy(AppState& state, const std::string& as, Clash clash) {
    state.context_.store.save({state.colors(), state.names()}, as, clash,
                              sayInstalled(state, as, savedToPickerText));
}

PaletteStore::SaveDone AppState::Installing::sayInstalled(const AppState& state,
                                                          std::string_view as, Said said) {
    return PaletteQuestions::sayInstalled(state.context_.services, state.context_.windows,
                                          state.place(), as, std::move(said));
}

void AppState::installFor(const InstallTarget& target) {
    Installing::askWhatToInstallAs(*this, PaletteQuestions::installName(target),
                                   [this, target](const std::string& as, Clash clash) {
                                       Installing::installInto(*this, target, as, clash);
                                   });
}

void AppState::Installing::installInto(AppState& state, const InstallTarget& target,
                                       const std::string& as, Clash clash) {
    state.context_.store.install({state.colors(), state.names()}, as, target, clash,
                                 sayInstalled(state, as, [target](std::string_view name) {
                                     return installedText(name, target.title);
                                 }));
}

} // namespace tintra
