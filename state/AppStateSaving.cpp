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

/// A palette on its way to its file.
struct AppState::Saving {
    std::filesystem::path to;
    bool attaches = false;     ///< it becomes the window's file
    std::uint64_t version = 0; ///< of the swatches that are written
    std::uint64_t turn = 0;    ///< of the palette that was shown
    std::optional<PaletteAttachment> before;
    Done done;
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

std::string AppState::homeText() const {
    switch (home()) {
    case Home::nowhere:
        return "a file";
    case Home::file:
        return attachment_.value()->url.filename().string();
    case Home::colourPicker:
    case Home::unwritable:
    case Home::readOnly:
        break;
    }
    return std::string(kColourPicker);
}

std::vector<std::string> AppState::translucentNames() const {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < swatches().size(); ++i)
        if (!swatches()[i].color.isOpaque()) names.push_back(swatchName(i));
    return names;
}

bool AppState::losesAlpha(ExportFormat format) const {
    return !holdsAlpha(format) && std::ranges::any_of(swatches(), [](const auto& swatch) {
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
    const bool opaque = format && losesAlpha(*format);
    Question question{saveChangesTitle(currentPaletteName()),
                      opaque ? alphaCountText(homeText(), translucentNames().size())
                             : discardText(swatches().size(), homeText(), before),
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
    if (swatches().empty()) {
        toast(std::string(kNoSwatches), kForCounts);
        tell(done, false);
        return;
    }
    const auto name = title();
    const auto last = context_.preferences.lastExport.value();
    switch (home()) {
    case Home::nowhere:
        askWhereToSave(isReadable(last) ? last : ExportFormat::ase, std::move(done));
        return;
    case Home::file:
    case Home::colourPicker:
        saveBack(*currentPaletteURL(), std::move(done));
        return;
    case Home::unwritable:
        saveInsteadOf(name, noSuchFormatText(name), std::move(done));
        return;
    case Home::readOnly:
        saveInsteadOf(name, neverWrittenText(name), std::move(done));
        return;
    }
}

void AppState::saveInsteadOf(const std::string& source, const std::string& said, Done done) {
    saveInPickerAsking(
        source, [said](std::string_view) { return said; }, std::move(done));
}

void AppState::saveAs(Done done) {
    askWhereToSave(context_.preferences.lastExport.value(), std::move(done));
}

void AppState::askWhereToSave(ExportFormat proposed, Done done) {
    SaveQuestion question{title(), std::string(rawValue(proposed)), {}, place()};
    const auto& attached = attachment_.value();
    if (attached && !attached->url.empty()) question.folder = attached->url.parent_path();
    context_.services.dialogues.askWhereToSave(
        std::move(question),
        whileAlive(alive_, [this, proposed, done = std::move(done)](
                               const std::optional<SaveAnswer>& answer) mutable {
            if (!answer) {
                toast(std::string(kCancelled), kBriefly);
                tell(done, false);
                return;
            }
            saveAs(answer->file, exportFormat(answer->format).value_or(proposed), std::move(done));
        }));
}

void AppState::saveAs(const std::filesystem::path& to, ExportFormat format, Done done) {
    // Whoever chose the format has been told what it does not hold.
    if (losesAlpha(format)) opaqueIn_.insert(to);
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
            saveInsteadOf(name, noSuchFormatText(name), done);
            return;
        }
        if (!isStylesheet(to) || ownStylesheets_.contains(to)) {
            saveBackAs(to, *format, done);
            return;
        }
        inBackground(
            context_.services, alive_, [to, format] { return holdsPaletteAlone(to, *format); },
            [this, to, format, name, done](bool alone) {
                if (alone)
                    saveBackAs(to, *format, done);
                else
                    saveInsteadOf(name, noSuchFormatText(name), done);
            });
    });
}

bool AppState::sourceMoved(const std::filesystem::path& file) const {
    const auto now = context_.windows.version(file);
    return now.stamp && now != loadedVersion_;
}

void AppState::saveBackAs(const std::filesystem::path& to, ExportFormat format, Done done) {
    if (!sourceMoved(to)) {
        askAboutAlpha(to, format, std::move(done));
        return;
    }
    askAboutMovedSource(
        [this, to, format, done](bool replace) {
            if (replace)
                askAboutAlpha(to, format, done);
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
            askWhereToSave(format.value_or(ExportFormat::ase), done);
        }));
}

void AppState::askAboutAlpha(const std::filesystem::path& to, ExportFormat format, Done done) {
    if (!losesAlpha(format) || opaqueIn_.contains(to)) {
        saveWithoutAsking(to, format, std::move(done));
        return;
    }
    Question question{saveChangesTitle(to.stem().string()),
                      alphaNamesText(extensionOf(to), translucentNames()),
                      buttons({kSave, kSaveAs, kCancel}), place()};
    context_.services.dialogues.ask(
        std::move(question),
        whileAlive(alive_, [this, to, format, done = std::move(done)](std::size_t button) {
            if (button == 0) {
                opaqueIn_.insert(to);
                saveWithoutAsking(to, format, done);
            } else if (button == 1) {
                askWhereToSave(ExportFormat::clr, done);
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
        [this, saving = Saving{to, isReadable(to, format), paletteVersion_.value(), contentTurn_,
                               attachment_.value(), std::move(done)}](
            const std::optional<FileError>& error) { saved(saving, error); });
}

void AppState::afterSaves(std::function<void()> then) {
    if (saving_)
        afterSaves_.push_back(std::move(then));
    else
        then();
}

void AppState::saveNext() {
    while (!saving_ && !afterSaves_.empty()) {
        const auto next = std::move(afterSaves_.front());
        afterSaves_.pop_front();
        // It may ask and save, and whoever waits for it may close the window.
        const std::weak_ptr alive = alive_;
        next();
        if (alive.expired()) return;
    }
}

void AppState::saved(const Saving& saving, const std::optional<FileError>& error) {
    saving_ = false;
    if (!afterSaves_.empty())
        context_.services.mainLoop.post(whileAlive(alive_, [this] { saveNext(); }));
    const auto file = saving.to.filename().string();
    if (error) {
        toast(couldNotText(file, "saved", error->why), kForCounts);
    } else if (!saving.attaches) {
        toast(exportedText(file), kBriefly);
    } else if (saving.turn != contentTurn_ || saving.before != attachment_.value()) {
        // The window shows another palette by now.
        static_cast<void>(context_.windows.saved(saving.to));
        toast(savedText(file), kBriefly);
    } else {
        keep({saving.to.stem().string(), saving.to}, saving.version);
        toast(home() == Home::colourPicker ? savedToPickerText(title()) : savedText(file),
              kBriefly);
    }
    // Whoever waits may close the window.
    tell(saving.done, !error);
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
    context_.windows.offerSaved(*this);
}

} // namespace tintra
