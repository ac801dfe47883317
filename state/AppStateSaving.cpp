#include "palettes/PaletteFile.h"
#include "platform/Dialogues.h"
#include "platform/File.h"
#include "state/AppState.h"
#include "state/Errands.h"
#include "state/NoticeTexts.h"
#include "state/Preferences.h"
#include "state/SaveTexts.h"
#include "state/UpdateGroup.h"

#include <algorithm>
#include <utility>

namespace tintra {

using namespace SaveTexts;

struct AppState::Saving {
    /// A palette on its way to its file.
    struct Job {
        std::filesystem::path to;
        bool attaches = false;     ///< it becomes the window's file
        std::uint64_t version = 0; ///< of the swatches that are written
        std::uint64_t turn = 0;    ///< of the palette that was shown
        std::optional<PaletteAttachment> before;
        Done done;
    };

    /// The words for a home in the question about unsaved changes.
    static std::string homeText(const AppState& state);
    static std::vector<std::string> translucentNames(const AppState& state);
    static bool losesAlpha(const AppState& state, ExportFormat format);
    static bool sourceMoved(const AppState& state, const std::filesystem::path& file);
    static void askWhereToSave(AppState& state, ExportFormat proposed, Done done);
    static void saveBackAs(AppState& state, const std::filesystem::path& to, ExportFormat format,
                           Done done);
    static void askAboutAlpha(AppState& state, const std::filesystem::path& to, ExportFormat format,
                              Done done);
    /// Into the colour picker, as the source cannot be written; `said`: the notice.
    static void saveInsteadOf(AppState& state, const std::string& source, const std::string& said,
                              Done done);
    static void saveNext(AppState& state);
    static void saved(AppState& state, const Job& job, const std::optional<FileError>& error);
};

namespace {

std::string extensionOf(const std::filesystem::path& file) {
    const auto extension = file.extension().string();
    return extension.empty() ? extension : extension.substr(1);
}

/// Whether a palette written there in that format can be read again.
bool isReadable(const std::filesystem::path& file, ExportFormat format) {
    return PaletteFile::kindOf(file) && exportFormatForExtension(extensionOf(file)) == format;
}

/// The same before there is a file.
bool isReadable(ExportFormat format) {
    return isReadable("palette." + std::string(fileExtension(format)), format);
}

bool isStylesheet(const std::filesystem::path& file) {
    return PaletteFile::kindOf(file) == PaletteFile::Kind::stylesheet;
}

/// Whether nothing is lost when a stylesheet is replaced by its palette.
bool holdsPaletteAlone(const std::filesystem::path& file, ExportFormat format) {
    constexpr std::uint64_t kLargest = std::uint64_t{1} << 20U;
    if (!fileStamp(file)) return true;
    const auto content = readFile(file, kLargest);
    const auto* const bytes = std::get_if<Bytes>(&content);
    return bytes != nullptr && PaletteExport::isAsWritten(asText(*bytes), format);
}

/// Beside a list of the colour picker there may be a copy for programs that read GIMP palettes.
void writeTwin(std::filesystem::path list, const std::optional<Bytes>& content) {
    std::error_code ignored;
    list.replace_extension(".gpl");
    if (content && std::filesystem::exists(list, ignored))
        static_cast<void>(writeFile(list, *content, Existing::replace));
}

void tell(const AppState::Done& done, bool saved) {
    if (done) done(saved);
}

std::vector<std::string> buttons(std::initializer_list<std::string_view> titles) {
    return {titles.begin(), titles.end()};
}

} // namespace

// Where a palette is saved

AppState::Home AppState::home() const {
    const auto& attached = attachment_.value();
    if (!attached) return Home::nowhere;
    const auto& file = attached->url;
    const auto* const entry = context_.store.entry(file.string());
    const bool isSystems = entry != nullptr && entry->group == PaletteStore::Entry::Group::system;
    if (file.empty() || isSystems) return Home::readOnly;
    const auto format = exportFormatForExtension(extensionOf(file));
    if (!format || !isReadable(file, *format)) return Home::unwritable;
    const bool isList =
        format == ExportFormat::clr && file.parent_path() == context_.store.colorsDirectory();
    return isList ? Home::colourPicker : Home::file;
}

std::string AppState::Saving::homeText(const AppState& state) {
    switch (state.home()) {
    case Home::nowhere:
        return "a file";
    case Home::file:
        return state.attachment_.value()->url.filename().string();
    case Home::colourPicker:
    case Home::unwritable:
    case Home::readOnly:
        break;
    }
    return std::string(kColourPicker);
}

std::vector<std::string> AppState::Saving::translucentNames(const AppState& state) {
    std::vector<std::string> told;
    for (std::size_t i = 0; i < state.swatches().size(); ++i)
        if (!state.swatches()[i].color.isOpaque()) told.push_back(state.swatchName(i));
    return told;
}

bool AppState::Saving::losesAlpha(const AppState& state, ExportFormat format) {
    return !holdsAlpha(format) && std::ranges::any_of(state.swatches(), [](const auto& swatch) {
        return !swatch.color.isOpaque();
    });
}

// Unsaved changes

void AppState::confirmDiscardingChanges(std::string_view before,
                                        std::function<void(bool)> answered) {
    // Without a swatch there is nothing that saving could keep.
    if (!dirty_.value() || swatches().empty()) {
        answered(true);
        return;
    }
    const auto format = home() == Home::file
                            ? exportFormatForExtension(extensionOf(*currentPaletteURL()))
                            : std::nullopt;
    const bool opaque = format && Saving::losesAlpha(*this, *format);
    Question question{
        saveChangesTitle(currentPaletteName()),
        opaque ? alphaCountText(Saving::homeText(*this), Saving::translucentNames(*this).size())
               : discardText(swatches().size(), Saving::homeText(*this), before),
        buttons({kSave, kDiscard, kCancel}), place()};
    context_.services.dialogues.ask(
        std::move(question),
        whileAlive(alive_, [this, opaque, action = std::string(before),
                            answered = std::move(answered)](std::size_t button) mutable {
            if (button != 0) {
                answered(button == 1);
                return;
            }
            if (opaque) opaqueIn_.insert(*currentPaletteURL());
            savePalette([this, action = std::move(action),
                         answered = std::move(answered)](bool saved) mutable {
                // An export saves nothing, and swatches edited meanwhile are not saved either.
                if (saved && dirty_.value())
                    confirmDiscardingChanges(action, std::move(answered));
                else
                    answered(saved);
            });
        }));
}

// Saving

void AppState::savePalette(Done done) {
    if (saving_) {
        // The file may be on its way to another name.
        afterSaves([this, done = std::move(done)] { savePalette(done); });
        return;
    }
    if (swatches().empty()) {
        toast(std::string(kNoSwatches), kForCounts);
        tell(done, false);
        return;
    }
    const auto name = title();
    const auto last = context_.preferences.lastExport.value();
    switch (home()) {
    case Home::nowhere:
        Saving::askWhereToSave(*this, isReadable(last) ? last : ExportFormat::ase, std::move(done));
        return;
    case Home::file:
    case Home::colourPicker:
        saveBack(*currentPaletteURL(), std::move(done));
        return;
    case Home::unwritable:
        Saving::saveInsteadOf(*this, name, noSuchFormatText(name), std::move(done));
        return;
    case Home::readOnly:
        Saving::saveInsteadOf(*this, name, neverWrittenText(name), std::move(done));
        return;
    }
}

void AppState::Saving::saveInsteadOf(AppState& state, const std::string& source,
                                     const std::string& said, Done done) {
    state.saveInPickerAsking(
        source, [said](std::string_view) { return said; }, std::move(done));
}

void AppState::saveAs(Done done) {
    Saving::askWhereToSave(*this, context_.preferences.lastExport.value(), std::move(done));
}

void AppState::Saving::askWhereToSave(AppState& state, ExportFormat proposed, Done done) {
    SaveQuestion question{state.title(), std::string(rawValue(proposed)), {}, state.place()};
    const auto& attached = state.attachment_.value();
    if (attached && !attached->url.empty()) question.folder = attached->url.parent_path();
    state.context_.services.dialogues.askWhereToSave(
        std::move(question),
        whileAlive(state.alive_, [&state, proposed, done = std::move(done)](
                                     const std::optional<SaveAnswer>& answer) mutable {
            if (!answer) {
                state.toast(std::string(kCancelled), kBriefly);
                tell(done, false);
                return;
            }
            state.saveAs(answer->file, exportFormat(answer->format).value_or(proposed),
                         std::move(done));
        }));
}

void AppState::saveAs(const std::filesystem::path& to, ExportFormat format, Done done) {
    // Whoever chose the format has been told what it does not hold.
    if (Saving::losesAlpha(*this, format)) opaqueIn_.insert(to);
    saveWithoutAsking(to, format,
                      whileAlive(alive_, [this, to, format, done = std::move(done)](bool saved) {
                          if (saved) {
                              context_.preferences.lastExport = format;
                              if (isStylesheet(to)) ownStylesheets_.insert(to);
                          }
                          tell(done, saved);
                      }));
}

void AppState::saveBack(const std::filesystem::path& to, Done done) {
    afterSaves([this, to, done = std::move(done)] {
        const auto format = exportFormatForExtension(extensionOf(to));
        const auto name = to.stem().string();
        if (!format || !isReadable(to, *format)) {
            Saving::saveInsteadOf(*this, name, noSuchFormatText(name), done);
            return;
        }
        if (!isStylesheet(to) || ownStylesheets_.contains(to)) {
            Saving::saveBackAs(*this, to, *format, done);
            return;
        }
        inBackground(
            context_.services, alive_, [to, format] { return holdsPaletteAlone(to, *format); },
            [this, to, format, name, done](bool alone) {
                if (alone)
                    Saving::saveBackAs(*this, to, *format, done);
                else
                    Saving::saveInsteadOf(*this, name, noSuchFormatText(name), done);
            });
    });
}

bool AppState::Saving::sourceMoved(const AppState& state, const std::filesystem::path& file) {
    const auto now = state.context_.windows.version(file);
    return now.stamp && now != state.loadedVersion_;
}

void AppState::Saving::saveBackAs(AppState& state, const std::filesystem::path& to,
                                  ExportFormat format, Done done) {
    if (!sourceMoved(state, to)) {
        askAboutAlpha(state, to, format, std::move(done));
        return;
    }
    state.askAboutMovedSource(
        [&state, to, format, done](bool replace) {
            if (replace)
                askAboutAlpha(state, to, format, done);
            else
                tell(done, false);
        },
        done);
}

void AppState::askAboutMovedSource(std::function<void(bool replace)> answered, Done done) {
    Question question{movedSourceTitle(title()), std::string(kMovedSource),
                      buttons({kSaveAs, kReplace, kCancel}), place()};
    context_.services.dialogues.ask(
        std::move(question), whileAlive(alive_, [this, answered = std::move(answered),
                                                 done = std::move(done)](std::size_t button) {
            if (button != 0) {
                answered(button == 1);
                return;
            }
            const auto file = currentPaletteURL();
            const auto format = file ? exportFormatForExtension(extensionOf(*file)) : std::nullopt;
            Saving::askWhereToSave(*this, format.value_or(ExportFormat::ase), done);
        }));
}

void AppState::Saving::askAboutAlpha(AppState& state, const std::filesystem::path& to,
                                     ExportFormat format, Done done) {
    if (!losesAlpha(state, format) || state.opaqueIn_.contains(to)) {
        state.saveWithoutAsking(to, format, std::move(done));
        return;
    }
    Question question{saveChangesTitle(to.stem().string()),
                      alphaNamesText(extensionOf(to), translucentNames(state)),
                      buttons({kSave, kSaveAs, kCancel}), state.place()};
    state.context_.services.dialogues.ask(
        std::move(question),
        whileAlive(state.alive_, [&state, to, format, done = std::move(done)](std::size_t button) {
            if (button == 0) {
                state.opaqueIn_.insert(to);
                state.saveWithoutAsking(to, format, done);
            } else if (button == 1) {
                askWhereToSave(state, ExportFormat::clr, done);
            } else {
                tell(done, false);
            }
        }));
}

void AppState::saveWithoutAsking(const std::filesystem::path& to, ExportFormat format, Done done) {
    if (saving_) {
        afterSaves(
            [this, to, format, done = std::move(done)] { saveWithoutAsking(to, format, done); });
        return;
    }
    const auto name = to.stem().string();
    const auto& options = context_.preferences.formatOptions.value();
    auto content = PaletteExport::data(format, colors(), names(), name, options);
    if (!content) {
        toast(swatches().empty() ? std::string(kNoSwatches)
                                 : nothingToWriteText(tintra::title(format)),
              kForCounts);
        tell(done, false);
        return;
    }
    std::optional<Bytes> twin;
    if (format == ExportFormat::clr && to.parent_path() == context_.store.colorsDirectory())
        twin = PaletteExport::data(ExportFormat::gpl, colors(), names(), name, options);
    saving_ = true;
    inBackground(
        context_.services, alive_,
        [to, content = *std::move(content), twin = std::move(twin)] {
            auto error = writeFile(to, content, Existing::replace);
            if (!error) writeTwin(to, twin);
            return error;
        },
        [this, job = Saving::Job{to, isReadable(to, format), paletteVersion_.value(), contentTurn_,
                                 attachment_.value(), std::move(done)}](
            const std::optional<FileError>& error) { Saving::saved(*this, job, error); });
}

void AppState::afterSaves(std::function<void()> then) {
    if (saving_)
        afterSaves_.push_back(std::move(then));
    else
        then();
}

void AppState::endSave() {
    saving_ = false;
    if (!afterSaves_.empty())
        context_.services.mainLoop.post(whileAlive(alive_, [this] { Saving::saveNext(*this); }));
}

void AppState::Saving::saveNext(AppState& state) {
    while (!state.saving_ && !state.afterSaves_.empty()) {
        const auto next = std::move(state.afterSaves_.front());
        state.afterSaves_.pop_front();
        // It may ask and save, and whoever waits for it may close the window.
        const std::weak_ptr alive = state.alive_;
        next();
        if (alive.expired()) return;
    }
}

void AppState::Saving::saved(AppState& state, const Job& job,
                             const std::optional<FileError>& error) {
    state.endSave();
    const auto file = job.to.filename().string();
    if (error) {
        state.toast(couldNotText(file, "saved", error->why), kForCounts);
    } else if (!job.attaches) {
        state.toast(exportedText(file), kBriefly);
    } else if (job.turn != state.contentTurn_ || job.before != state.attachment_.value()) {
        // The window shows another palette by now.
        static_cast<void>(state.context_.windows.saved(job.to));
        state.toast(savedText(file), kBriefly);
    } else {
        state.keep({job.to.stem().string(), job.to}, job.version);
        state.toast(state.home() == Home::colourPicker ? savedToPickerText(state.title())
                                                       : savedText(file),
                    kBriefly);
    }
    // Whoever waits may close the window.
    tell(job.done, !error);
}

void AppState::keep(PaletteAttachment in, std::uint64_t version) {
    const UpdateGroup group;
    ++saves_;
    if (paletteVersion_.value() == version) dirty_ = false;
    const auto file = in.url;
    attach(std::move(in));
    recordSaved(file);
}

void AppState::recordSaved(const std::filesystem::path& file) {
    loadedVersion_ = context_.windows.saved(file);
    persist(); // the record knows the file by its stamp
    context_.windows.offerSaved(*this);
}

} // namespace tintra
