#include "state/PaletteQuestions.h"

#include "palettes/FileNames.h"
#include "platform/Unicode.h"
#include "state/Errands.h"
#include "state/NoticeTexts.h"
#include "state/PaletteWindows.h"
#include "state/Preferences.h"
#include "state/SaveTexts.h"

#include <utility>

namespace tintra::PaletteQuestions {

using namespace SaveTexts;
using Clash = PaletteStore::Clash;

namespace {

NameQuestion::Clash replaceOrKeepBoth(std::string_view text) {
    return {std::string(text), {std::string(kReplace), std::string(kKeepBoth)}};
}

} // namespace

std::function<std::optional<std::string>(std::string_view)> refusalOfName(const PaletteStore& store,
                                                                          PaletteEntry entry) {
    return [&store, entry = std::move(entry)](std::string_view name) -> std::optional<std::string> {
        if (auto refused = whyUnfit(name)) return refused;
        std::error_code ignored;
        const auto there = store.placeOfCopy(entry, trimmed(name));
        if (std::filesystem::exists(there, ignored)) return alreadyThereText(name);
        return std::nullopt;
    };
}

NameQuestion copyName(const PaletteStore& store, const PaletteEntry& entry,
                      const std::string& shown, ToastPlace over) {
    const bool toPicker = entry.url.empty() || entry.group != PaletteEntry::Group::location;
    return {.title = duplicateTitle(shown),
            .note = std::string(toPicker ? kCopyInPicker : kCopyBeside),
            .proposal = shown + " copy",
            .button = "Duplicate",
            .refusal = refusalOfName(store, entry),
            .over = over};
}

void withColorsFolder(Services& services, Preferences& preferences, const PaletteStore& store,
                      ToastPlace over, const std::shared_ptr<bool>& alive,
                      std::function<void(bool granted)> then) {
    if (store.writableColorsFolder()) {
        then(true);
        return;
    }
    services.dialogues.askWhatToOpen(
        {OpenQuestion::Of::folder, std::string(kInstallOnce), over},
        whileAlive(alive, [&preferences, then = std::move(then)](
                              const std::optional<std::filesystem::path>& folder) {
            if (folder) {
                const auto path = asBytes(folder->native());
                preferences.colorsFolderBookmark = Bytes(path.begin(), path.end());
            }
            then(folder.has_value());
        }));
}

NameQuestion installName(const PaletteStore& store) {
    NameQuestion question;
    question.title = "Install in the colour picker as";
    question.note = kInstallNote;
    question.clash = [&store](std::string_view name) -> std::optional<NameQuestion::Clash> {
        if (!store.hasNamed(trimmed(name))) return std::nullopt;
        return replaceOrKeepBoth(kListExists);
    };
    return question;
}

NameQuestion installName(const InstallTarget& into) {
    NameQuestion question;
    question.title = installForTitle(into.title);
    question.note = into.folder.string();
    question.clash =
        [folder = into.folder](std::string_view name) -> std::optional<NameQuestion::Clash> {
        std::error_code ignored;
        if (!std::filesystem::exists(folder / (fitFileName(name) + ".gpl"), ignored))
            return std::nullopt;
        return replaceOrKeepBoth(kPaletteExists);
    };
    return question;
}

void askInstallName(Services& services, NameQuestion question, std::string proposal,
                    ToastPlace over, const std::shared_ptr<bool>& alive,
                    std::function<void(std::string as, Clash clash)> then) {
    question.proposal = std::move(proposal);
    question.button = "Install";
    question.refusal = whyUnfit;
    question.over = over;
    services.dialogues.askName(
        std::move(question),
        whileAlive(alive, [then = std::move(then)](const std::optional<NameAnswer>& answer) {
            if (!answer) return;
            // Without a clash nothing is replaced, whatever has come there meanwhile.
            then(std::string(trimmed(answer->name)),
                 answer->button == 0U ? Clash::replace : Clash::keepBoth);
        }));
}

PaletteStore::SaveDone sayInstalled(Services& services, PaletteWindows& windows, ToastPlace over,
                                    std::string_view as,
                                    std::function<std::string(std::string_view name)> said) {
    return [&services, &windows, over, as = std::string(as),
            said = std::move(said)](const std::variant<PaletteStore::Saved, FileError>& result) {
        if (const auto* const error = std::get_if<FileError>(&result)) {
            services.toasts.show(couldNotText(as, "saved", error->why), kForCounts, {}, over);
            return;
        }
        const auto& saved = std::get<PaletteStore::Saved>(result);
        auto text = said(saved.name);
        if (saved.oldIsInTrash) text += kOldListInTrash;
        // It may have replaced the list that a window shows.
        static_cast<void>(windows.saved(saved.file));
        services.toasts.show(std::move(text), kForCounts, {}, over);
    };
}

PaletteStore::TrashDone sayTrashed(Services& services, PaletteStore& store, ToastPlace over,
                                   std::string file, std::function<void()> went,
                                   std::function<void()> back) {
    const auto say = [&services, over, file](std::string_view done, const FileError& error) {
        services.toasts.show(couldNotText(file, done, error.why), kForCounts, {}, over);
    };
    return [&services, &store, over, file, say, went = std::move(went),
            back = std::move(back)](const std::variant<TrashedFile, FileError>& result) {
        if (const auto* const error = std::get_if<FileError>(&result)) {
            say("moved to the Trash", *error);
            return;
        }
        went();
        const auto putBack = [&store, say, back, trashed = std::get<TrashedFile>(result)] {
            store.putBack(trashed, [say, back](const std::optional<FileError>& error) {
                if (error)
                    say("put back", *error);
                else
                    back();
            });
        };
        services.toasts.show(trashedText(file), kForCounts, ToastAction{"Undo", putBack}, over);
    };
}

} // namespace tintra::PaletteQuestions
