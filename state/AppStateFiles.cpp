#include "palettes/FileNames.h"
#include "palettes/PaletteFile.h"
#include "platform/Dialogues.h"
#include "platform/File.h"
#include "platform/FileBrowser.h"
#include "platform/Unicode.h"
#include "state/AppState.h"
#include "state/AppUndo.h"
#include "state/Errands.h"
#include "state/NoticeTexts.h"
#include "state/PaletteQuestions.h"
#include "state/Preferences.h"
#include "state/SaveTexts.h"
#include "state/SwatchMatch.h"
#include "state/UpdateGroup.h"

#include <utility>

namespace tintra {

struct AppState::Loading {
    /// What a palette file gave. Without swatches it is a palette of none, or cannot be read.
    struct Reading {
        std::vector<PaletteFile::Swatch> swatches;
        bool isEmpty = false;
    };
    static Reading readPalette(const std::filesystem::path& file);
    /// Reads in the background; `shown` names the palette in a refusal.
    static void load(AppState& state, LoadedPalette palette, std::string shown,
                     std::function<Reading()> read);
    static void show(AppState& state, LoadedPalette palette);
    static void takeRead(AppState& state, std::vector<PaletteFile::Swatch> now,
                         const FileVersion& version);
    static void askFileName(AppState& state, NameQuestion question,
                            void (AppState::*then)(std::string_view));
    static void moveTo(AppState& state, PaletteAttachment file);
    /// Of a file that has gone to the Trash, and that has come back.
    static void letGo(AppState& state, const PaletteAttachment& file);
    static void takeBack(AppState& state, const PaletteAttachment& file);
};

namespace {

bool isEmptyFile(const std::filesystem::path& file) {
    // What holds no colour in this much is no palette that somebody emptied.
    constexpr std::uint64_t kLargest = std::uint64_t{1} << 20U;
    const auto kind = PaletteFile::kindOf(file);
    if (!kind) return false;
    const auto content = readFile(file, kLargest);
    const auto* const bytes = std::get_if<Bytes>(&content);
    return bytes != nullptr && PaletteFile::isEmpty(*bytes, *kind);
}

} // namespace

// New palettes

void AppState::newPalette() {
    confirmDiscardingChanges("starting a new palette", whileAlive(alive_, [this](bool goesOn) {
                                 if (goesOn) leaveUntitled();
                             }));
}

void AppState::startNewPalette() {
    confirmDiscardingChanges("starting a new palette", whileAlive(alive_, [this](bool goesOn) {
                                 if (!goesOn) return;
                                 const UpdateGroup group;
                                 leaveUntitled();
                                 enterPaletteBuilder();
                             }));
}

void AppState::leaveUntitled() {
    ++loadTurn_;
    ++contentTurn_;
    if (swatches().empty() && !attachment_.value()) return;
    checkpointPalette();
    const UpdateGroup group;
    setSwatches({});
    attachment_ = std::nullopt;
    loadedVersion_ = {};
    dirty_ = false;
    announcePalette();
}

// Loading

void AppState::open() {
    context_.services.dialogues.askWhatToOpen(
        {OpenQuestion::Of::palette, {}, place()},
        whileAlive(alive_, [this](const std::optional<std::filesystem::path>& file) {
            if (file) open(*file);
        }));
}

AppState::Loading::Reading AppState::Loading::readPalette(const std::filesystem::path& file) {
    if (auto swatches = PaletteFile::readNamed(file)) return {*std::move(swatches)};
    return {{}, isEmptyFile(file)};
}

void AppState::open(const std::filesystem::path& file) {
    Loading::load(*this, {file.stem().string(), file, {}, {}}, file.filename().string(),
                  [file] { return Loading::readPalette(file); });
}

void AppState::loadPalette(const PaletteStore::Entry& entry) {
    LoadedPalette palette{entry.name, {}, {}, {}};
    if (entry.isEditable && !entry.url.empty()) palette.url = entry.url;
    if (entry.url.empty()) {
        Loading::load(*this, std::move(palette), entry.name, [found = entry.palette] {
            return Loading::Reading{found ? found->swatches : std::vector<PaletteFile::Swatch>{}};
        });
        return;
    }
    Loading::load(*this, std::move(palette), entry.name,
                  [&cache = context_.store.cache(), file = entry.url] {
                      const auto found = cache.warm(file);
                      if (found && !found->swatches.empty())
                          return Loading::Reading{found->swatches};
                      return Loading::Reading{{}, isEmptyFile(file)};
                  });
}

void AppState::Loading::load(AppState& state, LoadedPalette palette, std::string shown,
                             std::function<Reading()> read) {
    const auto turn = ++state.loadTurn_;
    // Asked before reading: a file that changes meanwhile counts as changed.
    if (palette.url) palette.version = state.context_.windows.version(*palette.url);
    inBackground(state.context_.services, state.alive_, std::move(read),
                 [&state, turn, palette = std::move(palette),
                  shown = std::move(shown)](Reading&& found) mutable {
                     if (turn != state.loadTurn_) return;
                     if (found.swatches.empty()) {
                         state.toast(found.isEmpty ? SaveTexts::emptyText(shown)
                                                   : SaveTexts::unreadableText(shown),
                                     kBriefly);
                         return;
                     }
                     palette.swatches = std::move(found.swatches);
                     state.loadPalette(std::move(palette));
                 });
}

void AppState::loadPalette(LoadedPalette palette) {
    if (palette.swatches.empty()) {
        toast(SaveTexts::emptyText(palette.name), kBriefly);
        return;
    }
    if (mode.value() != HarmonyMode::paletteBuilder) {
        toast(SaveTexts::openedElsewhereText(palette.name), kBriefly);
        context_.windows.openInNewWindow(std::move(palette));
        return;
    }
    confirmDiscardingChanges(
        "opening another palette",
        whileAlive(alive_, [this, palette = std::move(palette)](bool goesOn) mutable {
            if (goesOn) Loading::show(*this, std::move(palette));
        }));
}

void AppState::Loading::show(AppState& state, LoadedPalette palette) {
    ++state.loadTurn_;
    ++state.contentTurn_;
    if (!state.swatches().empty() || state.attachment_.value()) state.checkpointPalette();
    if (palette.swatches.size() > kPaletteCapacity) {
        // A window that shows a part of a file must not write the part back.
        palette.swatches.resize(kPaletteCapacity);
        palette.url.reset();
        state.toast(paletteFullText(kPaletteCapacity), kForCounts);
    }
    std::vector<PaletteSwatch> fresh;
    fresh.reserve(palette.swatches.size());
    for (auto& swatch : palette.swatches)
        fresh.push_back(state.freshSwatch(swatch.color, std::move(swatch.name)));
    const UpdateGroup group;
    state.setSwatches(std::move(fresh));
    state.selectedSwatch = std::nullopt;
    state.attachment_ =
        PaletteAttachment{palette.name, palette.url.value_or(std::filesystem::path())};
    state.loadedVersion_ = palette.version;
    state.dirty_ = false;
    state.announcePalette();
}

// What other windows save

void AppState::takeSaved(const AppState&) {
    const auto file = currentPaletteURL();
    if (restoring_ || dirty_.value() || !file) return;
    const auto turn = contentTurn_;
    inBackground(
        context_.services, alive_, [file = *file] { return Loading::readPalette(file); },
        [this, turn, version = context_.windows.version(*file)](Loading::Reading&& found) {
            // Edits made meanwhile stay; saving them asks about the other window's save.
            if (turn != contentTurn_ || dirty_.value() || found.swatches.empty()) return;
            Loading::takeRead(*this, std::move(found.swatches), version);
        });
}

void AppState::Loading::takeRead(AppState& state, std::vector<PaletteFile::Swatch> now,
                                 const FileVersion& version) {
    const auto matches = matchedSwatches(state.swatches(), now);
    std::vector<PaletteSwatch> taken;
    taken.reserve(now.size());
    for (std::size_t i = 0; i < now.size(); ++i) {
        taken.push_back(state.freshSwatch(now[i].color, std::move(now[i].name)));
        if (matches[i]) taken.back().id = *matches[i];
    }
    // What this window undid would bring back a palette that was never followed by this one, and a
    // step of undo for the reload would come before the other window's own.
    state.context_.undo.discardEntries(state.id_);
    const UpdateGroup group;
    state.setSwatches(std::move(taken));
    state.loadedVersion_ = version;
    state.announcePalette();
    state.toast(std::string(SaveTexts::kUpdated), kBriefly);
}

// The window's file

PaletteStore::Entry AppState::entryOfFile() const {
    const auto& attached = attachment_.value();
    if (!attached) return {};
    const auto key = attached->url.empty() ? attached->name : attached->url.string();
    if (const auto* const entry = context_.store.entry(key)) return *entry;
    PaletteStore::Entry entry;
    entry.name = attached->name;
    entry.url = attached->url;
    if (attached->url.parent_path() == context_.store.colorsDirectory())
        entry.group = PaletteStore::Entry::Group::colourPicker;
    return entry;
}

void AppState::Loading::askFileName(AppState& state, NameQuestion question,
                                    void (AppState::*then)(std::string_view)) {
    question.over = state.place();
    question.refusal = PaletteQuestions::refusalOfName(state.context_.store, state.entryOfFile());
    state.context_.services.dialogues.askName(
        std::move(question),
        whileAlive(state.alive_, [&state, then](const std::optional<NameAnswer>& answer) {
            if (answer) (state.*then)(trimmed(answer->name));
        }));
}

void AppState::duplicatePalette() {
    Loading::askFileName(
        *this, PaletteQuestions::copyName(context_.store, entryOfFile(), title(), place()),
        &AppState::duplicatePalette);
}

void AppState::duplicatePalette(std::string_view as) {
    const auto entry = entryOfFile();
    if (whyUnfit(as) || (entry.name.empty() && entry.url.empty())) {
        toast(SaveTexts::couldNotDuplicateText(title()), kForCounts);
        return;
    }
    context_.store.duplicate(entry, as,
                             whileAlive(alive_, [this, from = title(), as = std::string(as)](
                                                    const std::optional<FileError>& error) {
                                 if (error && error->isTaken)
                                     toast(SaveTexts::alreadyThereText(as), kForCounts);
                                 else if (error)
                                     toast(SaveTexts::couldNotDuplicateText(from), kForCounts);
                                 else
                                     toast(SaveTexts::duplicatedText(from, as), kBriefly);
                             }));
}

void AppState::renamePalette() {
    if (!currentPaletteURL()) return;
    Loading::askFileName(*this,
                         {.title = SaveTexts::renameTitle(title()),
                          .note = {},
                          .proposal = title(),
                          .button = std::string(SaveTexts::kRename),
                          .refusal = {},
                          .over = {}},
                         &AppState::renamePalette);
}

void AppState::renamePalette(std::string_view to) {
    const auto from = currentPaletteURL();
    if (!from || to == title()) return;
    if (auto refused = whyUnfit(to)) {
        toast(*std::move(refused), kForCounts);
        return;
    }
    const auto entry = entryOfFile();
    const auto there = context_.store.placeOfCopy(entry, to);
    context_.store.rename(
        entry, to,
        whileAlive(alive_, [this, from = *from, to = std::string(to),
                            there](const std::optional<FileError>& error) {
            if (error && error->isTaken)
                toast(SaveTexts::alreadyThereText(to), kForCounts);
            else if (error)
                toast(SaveTexts::couldNotText(from.filename().string(), "renamed", error->why),
                      kForCounts);
            else if (currentPaletteURL() == from)
                Loading::moveTo(*this, {to, there});
        }));
}

/// The file is another one by name only, so what is known of its state stays true.
void AppState::Loading::moveTo(AppState& state, PaletteAttachment file) {
    const auto from = state.displayKey();
    state.loadedVersion_.saves = state.context_.windows.version(file.url).saves;
    state.attach(std::move(file));
    auto views = state.context_.preferences.paletteViews.value();
    if (auto view = views.extract(from)) {
        view.key() = state.displayKey();
        views.insert(std::move(view));
        state.context_.preferences.paletteViews = views;
    }
}

void AppState::attach(PaletteAttachment to) {
    if (attachment_.value() == to) return;
    attachment_ = std::move(to);
    context_.windows.paletteChanged(*this);
}

void AppState::trashPalette() {
    const auto attached = attachment_.value();
    if (!attached || attached->url.empty()) return;
    context_.store.trash(
        entryOfFile(),
        PaletteQuestions::sayTrashed(
            context_.services, context_.store, place(), attached->url.filename().string(),
            whileAlive(alive_, [this, attached = *attached] { Loading::letGo(*this, attached); }),
            whileAlive(alive_,
                       [this, attached = *attached] { Loading::takeBack(*this, attached); })));
}

void AppState::Loading::letGo(AppState& state, const PaletteAttachment& file) {
    if (state.attachment_.value() != file) return;
    const UpdateGroup group;
    state.attachment_ = std::nullopt;
    state.loadedVersion_ = {};
    state.context_.windows.paletteChanged(state);
}

void AppState::Loading::takeBack(AppState& state, const PaletteAttachment& file) {
    if (state.attachment_.value()) return;
    const UpdateGroup group;
    state.loadedVersion_ = state.context_.windows.version(file.url);
    state.attach(file);
}

void AppState::revealPalette() {
    if (const auto file = currentPaletteURL()) context_.services.fileBrowser.reveal(*file);
}

} // namespace tintra
