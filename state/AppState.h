#pragma once

#include "colour/ColorFormat.h"
#include "colour/Contrast.h"
#include "colour/Harmony.h"
#include "colour/Vision.h"
#include "palettes/PaletteExport.h"
#include "palettes/PaletteStore.h"
#include "platform/MainLoop.h"
#include "platform/Toasts.h"
#include "state/AppContext.h"
#include "state/BandsKey.h"
#include "state/Choices.h"
#include "state/Drag.h"
#include "state/EditorBuffer.h"
#include "state/Geometry.h"
#include "state/ImageSource.h"
#include "state/PaletteLocations.h"
#include "state/PaletteWindows.h"
#include "state/Quote.h"
#include "state/StoredWorkspace.h"
#include "state/UndoTargets.h"

#include <QProperty>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tintra {

/// The model of one palette window: the seeds of its harmony, its palette, and how it is shown.
/// Whatever changes the palette takes an undo checkpoint, marks the palette changed and schedules
/// the window's record. Files are read and written in the background. Main loop.
class AppState final : public PaletteUndoTarget {
public:
    /// Which seed.
    enum class SeedRole { first, last };
    using PaletteDisplay = tintra::PaletteDisplay;
    using ToastPlace = tintra::ToastPlace;
    using Stored = StoredWorkspace;
    using ImageSource = tintra::ImageSource;
    using EditorBuffer = tintra::EditorBuffer;
    using BandsKey = tintra::BandsKey;

    /// What the colours from a picture are to do with a palette that has some.
    enum class Arriving { add, replace };

    enum class Duplicates { refuse, allow };

    AppState(Uuid id, bool isPrimary, AppContext context);
    ~AppState() override;
    AppState(const AppState&) = delete;
    AppState& operator=(const AppState&) = delete;

    const Uuid& id() const { return id_; }
    bool isPrimary() const { return isPrimary_; }
    const std::string& untitledName() const { return untitledName_; }
    const Quote& quote() const { return quote_; }
    /// Where this window's notices are shown.
    ToastPlace place() const { return {ToastWindow::palette, id_}; }

    // Seeds and harmony. Every one of these is persisted; `setSeed` and its like take checkpoints.

    const QProperty<Seeds>& seeds() const { return seeds_; }
    const WashColor& first() const { return seeds_.value().first; }
    const WashColor& last() const { return seeds_.value().last; }
    /// The bounds of steps and shades; `bands` brings other numbers into them.
    static constexpr int kFewestSteps = 2, kMostSteps = 32;
    static constexpr int kFewestShades = 1, kMostShades = 16;
    QProperty<int> steps{5};
    QProperty<BlendSpace> blendSpace{BlendSpace::sRGB};
    QProperty<HarmonyMode> mode{HarmonyMode::paletteBuilder};
    QProperty<int> shadesPerAnchor{1};

    // The palette

    const QProperty<std::vector<PaletteSwatch>>& customPalette() const { return palette_; }
    const std::vector<PaletteSwatch>& swatches() const override { return palette_.value(); }
    std::vector<WashColor> colors() const;
    /// Given names, in step with `colors`.
    std::vector<std::optional<std::string>> names() const;
    /// Goes up with every change of the palette.
    const QProperty<std::uint64_t>& customPaletteVersion() const { return paletteVersion_; }
    const QProperty<bool>& paletteIsDirty() const { return dirty_; }
    const QProperty<std::optional<PaletteAttachment>>& attachment() const { return attachment_; }
    std::optional<std::string> currentPaletteName() const;
    std::optional<std::filesystem::path> currentPaletteURL() const;
    const FileVersion& loadedVersion() const { return loadedVersion_; }
    /// The file's name, else the untitled name.
    std::string title() const;
    /// Under which `Preferences::paletteViews` keeps how the palette is shown.
    std::string displayKey() const;
    std::optional<std::size_t> indexOf(const Uuid& swatch) const;
    /// The user's name, else the nearest one.
    std::string swatchName(std::size_t at) const;

    // How the window shows it. Views set these; those with a record are persisted.

    QProperty<std::optional<std::size_t>> selectedSwatch; ///< persisted
    QProperty<std::optional<std::size_t>> revealSwatch;   ///< to scroll into view
    QProperty<std::optional<std::size_t>> renamingSwatch; ///< whose name is being edited
    QProperty<Vision> vision{Vision::typical};
    QProperty<std::optional<EditorBuffer>> editorBuffer; ///< none while the editor is shut
    QProperty<ImageSource> imageSource;                  ///< without a picture when there is none
    QProperty<bool> isPictureWindowOpen{false};
    QProperty<PaletteDisplay> viewBeforePicture{PaletteDisplay::columns};
    QProperty<bool> isCollapsed{false}; ///< persisted
    QProperty<bool> collapsedAutomatically{false};
    QProperty<bool> isHung{false};
    QProperty<bool> isExpanded{false};
    QProperty<StoredSize> windowSize;
    QProperty<std::map<HarmonyMode, StoredSize>> modeSizes; ///< persisted
    QProperty<std::optional<CompactOrientation>>
        compactOrientation;                             ///< persisted; none: the preference
    QProperty<std::optional<StoredFrame>> frame;        ///< persisted
    QProperty<std::optional<StoredFrame>> pendingFrame; ///< to apply once the window exists
    QProperty<std::uint64_t> copyTick{0};               ///< goes up with every copy
    QProperty<std::optional<std::size_t>> draggingSwatch;
    QProperty<bool> swatchIsOver{false}, fileIsOver{false};
    QProperty<bool> paletteJustChanged{false}, modeJustChanged{false};

    // Palette content (AppStatePalette.cpp)

    /// Refused when the palette is full or holds the colour (which is selected then), with a
    /// notice. Answers whether it was added.
    bool addToPalette(const WashColor& colour, Duplicates duplicates,
                      std::optional<std::string> name = {});
    /// Names in step with `colours`, or fewer. Reports the counts.
    void addAllToPalette(std::span<const WashColor> colours,
                         std::span<const std::optional<std::string>> names = {});
    /// Adds a swatch of the last seed's colour to be edited; `takingKeyboard` begins its name.
    void addBlankSwatch(bool takingKeyboard);
    void duplicateSwatch(std::size_t at);
    void removeSwatch(std::size_t at);
    void removeSelectedSwatch();
    /// `to` is counted without the swatch itself.
    void moveSwatch(std::size_t from, std::size_t to);
    /// Blank text takes the name away.
    void renameSwatch(std::size_t at, std::string_view to);
    /// `channel`: what is being changed ("h", "alpha"), so that a run of such changes is one step
    /// of undo; empty for a step of its own.
    void replaceInPalette(std::size_t index, const WashColor& with, std::string_view channel = {});
    void replacePalette(std::span<const WashColor> with,
                        std::span<const std::optional<std::string>> names);
    /// Asks about unsaved changes, then leaves an untitled, empty palette.
    void clearPalette();
    /// Takes every swatch out; the file stays attached.
    void emptyPalette();
    /// Puts the editor's colour into the palette; the swatch of `editorBuffer`, wherever it is now.
    /// `channel` as for `replaceInPalette`.
    void applyEdit(std::string_view channel = {});
    /// Begins to edit a swatch; an edit of another one is applied first.
    void editSwatch(std::size_t at);
    void revertEdit();

    // Seeds and harmony (AppStateSeeds.cpp)

    /// The last seed follows a first one while the user has chosen none. Changes that follow each
    /// other closely with the key of state/CoalescingKeys.h are one step of undo.
    void setSeed(SeedRole role, const WashColor& colour, std::string_view coalescing = {});
    /// A colour picked from the screen.
    void pickFirst(const WashColor& colour);
    void pickLast(const WashColor& colour);
    /// A pick in an empty window: into the palette, or the first seed of a harmony.
    void pickForEmpty(const WashColor& colour);
    /// Back to the seeds of a new window.
    void clearSeeds();
    void restoreSeeds(const Seeds& seeds);
    void swapSeeds();
    void checkpointSeeds(std::string_view coalescing);
    void receiveSeed(const Drag& drag, SeedRole as);
    /// The last seed that follows from a first one while the user has chosen none.
    static WashColor defaultingLast(const WashColor& first);
    /// Of a new window.
    static Seeds defaultSeeds();
    /// Two seeds as a record holds them: the last is the user's unless it follows from the first.
    static Seeds storedSeeds(const WashColor& first, const WashColor& last);
    void enterPaletteBuilder();
    void markModeChanged();
    /// None in the palette builder. Computed anew only when something of its key has changed.
    const std::vector<Harmony::Band>& bands() const;
    void addHarmonyToPalette();

    // Palette files (AppStateFiles.cpp, AppStateSaving.cpp)

    using Done = std::function<void(bool done)>;

    /// An untitled, empty palette; asks about unsaved changes first.
    void newPalette();
    /// The same, in the palette builder.
    void startNewPalette();
    /// Asks for a palette file, then the same as with it.
    void open();
    /// Reads a palette file in the background and loads it.
    void open(const std::filesystem::path& file);
    void loadPalette(const PaletteStore::Entry& entry);
    /// Shows a palette: asks about unsaved changes; opens a new window when a harmony would go.
    void loadPalette(LoadedPalette palette);
    /// To the file it came from, or asks where; into the colour picker when that file cannot be
    /// written back. `done` is told whether it was saved, also by the other saves.
    void savePalette(Done done = {});
    /// As a colour list of the system colour picker, to which the window is attached from then on.
    void savePalette(std::string_view as, PaletteStore::Clash clash, const Done& done = {});
    /// Asks where and in which format.
    void saveAs(Done done = {});
    /// A file that can be read again becomes the window's file; any other is an export, which
    /// leaves the window as it is.
    void saveAs(const std::filesystem::path& to, ExportFormat format, Done done = {});
    /// Asks about other windows' saves and lost alpha, then writes.
    void saveBack(const std::filesystem::path& to, Done done);
    /// The swatches as they are now, in the background; swatches edited meanwhile stay unsaved.
    void saveWithoutAsking(const std::filesystem::path& to, ExportFormat format, Done done);
    /// The window's file beside itself; without a name it is asked for.
    void duplicatePalette();
    void duplicatePalette(std::string_view as);
    /// The window's file; without a name it is asked for.
    void renamePalette();
    void renamePalette(std::string_view to);
    /// Moves the window's file to the Trash; the swatches stay, without a file. The notice offers
    /// to put it back.
    void trashPalette();
    /// Shows the window's file in the file browser.
    void revealPalette();
    /// What another window saved to this window's file; nothing when there are unsaved changes.
    void takeSaved(const AppState& from);
    void recordSaved(const std::filesystem::path& file);
    /// `answered` is told of Replace and Cancel; Save As… tells `done`.
    void askAboutMovedSource(std::function<void(bool replace)> answered, Done done);
    /// Asks before unsaved changes go; `answered` is told whether to go on. `action` is a phrase
    /// such as "quitting".
    void confirmDiscardingChanges(std::string_view before, std::function<void(bool)> answered);
    /// Asks for a name; the window stays attached to its own file, if it has one.
    void installInColourPicker();
    /// The same into the palette folder of a drawing program.
    void installFor(const InstallTarget& target);

    // Library locations (AppStateLibrary.cpp)

    void addPaletteLocation();
    void addPaletteLocation(const std::filesystem::path& folder);
    void removePaletteLocation(const Uuid& id);
    void rechoosePaletteLocation(const Uuid& id);

    // Sending elsewhere (AppStateSending.cpp)

    void toggleBenchedSwatch(std::size_t at);
    void toggleBenchedBand(const WashColor& colour, std::optional<std::string> name);
    bool isPaletteSwatchBenched(std::size_t at) const;
    bool isBandBenched(const WashColor& colour) const;
    void sendToContrast(const WashColor& colour, std::optional<std::string> name, ToastPlace where);
    void sendToContrast(const WashColor& colour, std::optional<std::string> name, Contrast::Role as,
                        ToastPlace where);
    /// Fills the board up, never lets go of an entry, and shows the board.
    void sendAllToContrast();
    /// Sends the colour, or takes it off the board.
    void toggleContrast(const WashColor& colour, std::optional<std::string> name, ToastPlace where);
    void sortContrastByLightness(bool lightestFirst, ToastPlace where);
    void copy(const WashColor& colour, const std::optional<std::string>& name,
              std::optional<ColorFormat> as = {});
    void copyAll(std::span<const WashColor> colours,
                 std::span<const std::optional<std::string>> names);

    /// Keys held during a quick pick, by the place of the key symbols: ⌘ ⌥ ⇧.
    struct Modifiers {
        bool command = false, option = false, shift = false;
    };
    void quickPick(const WashColor& colour, Modifiers modifiers);

    // Drag and drop (AppStateDrops.cpp)

    /// What would be said to a drop on the palette; nothing when it is taken.
    std::optional<std::string> refusal(const Drag& of, bool moving) const;
    /// A dropped colour before the swatch at `at` (the count: at the end). A swatch of this palette
    /// moves; one of another moves when `moving`: the window that it comes from then has to
    /// `release` it. Answers whether the drop was taken; a refusal is shown.
    bool receive(const Drag& drag, std::size_t at, bool moving);
    void explainMoveRefusal();
    /// A swatch of this palette has moved to another window.
    void release(const Uuid& swatch);
    /// Colours out of text that was pasted or dropped, or read already. Answers how many it held.
    std::size_t receiveText(std::string_view text);
    void receiveSwatches(std::span<const PaletteFile::Swatch> found);

    // Pictures (AppStatePicture.cpp)

    void chooseImage();
    void loadImage(const std::filesystem::path& file);
    void loadImage(Bytes content, std::string name);
    void closePicture();
    /// Finds `count` colours anew.
    void reextract(int count, ImagePalette::Emphasis emphasis);
    bool canExtractMore() const;
    bool canExtractFewer() const;
    /// "Add All to Palette": asks when the palette holds something.
    void applyExtraction();
    void applyExtraction(Arriving arriving);
    /// The colour there becomes a swatch, with a pin of the user's own; a palette that refuses it
    /// says so, and there is no pin.
    void addPin(ImagePalette::Point at);
    /// Its swatch, if there is one, takes the colour there. The pin is the user's own from then on.
    void movePin(std::size_t pin, ImagePalette::Point to);
    /// With its swatch.
    void removePin(std::size_t pin);
    /// The swatches of this palette that have pins, in the order of pins.
    std::vector<Uuid> pinSwatchIDs() const;

    // Window (AppStateWindow.cpp)

    void toggleCollapsed();
    void toggleEditor();
    void toggleExpanded();
    void applicationBecameActive();
    void applicationResignedActive();
    /// A notice that offers to undo the last change.
    void flashUndoable(std::string text, ToastPlace where);

    // Persistence (AppStatePersistence.cpp)

    Stored currentStored() const;
    /// Applies a whole record, or all but the palette and the seeds.
    void apply(const Stored& stored) { applyStored(stored, true); }
    void applyStored(const Stored& stored, bool includeContent);
    /// Schedules the record 0.3 s from now; nothing while `restoring`.
    void persist();
    void persistNow();
    /// Writes a scheduled record at once.
    void flushPersist();
    /// The primary window's record, when there is one.
    void restore();
    bool restoring() const { return restoring_; }

    // Undo

    PaletteContent exchangePalette(PaletteContent other) override;
    Seeds exchangeSeeds(Seeds other) override;
    void exchangeMove(std::size_t from, std::size_t to) override;

private:
    // The steps of operations, each in the file of its operations.
    struct Loading;
    struct Saving;
    struct Installing;
    struct Extracting;
    struct Persisted;
    struct PinMove {
        std::size_t pin;
        ImagePalette::Point to;
    };

    /// Schedules the record with every change of a persisted property.
    void subscribe();

    /// Shown over this window unless said otherwise; nothing is shown while restoring.
    void toast(std::string text, double seconds) const;
    void toast(std::string text, double seconds, ToastPlace where,
               std::optional<ToastAction> action = {}) const;
    PaletteContent content() const;
    void checkpointPalette(std::string_view coalescing = {});
    /// The swatches and the palette's version. Selection, name edit and colour editor stay with
    /// their swatches.
    void setSwatches(std::vector<PaletteSwatch> swatches);
    void followSwatches(const std::vector<PaletteSwatch>& before);
    void followInEditor(const std::vector<PaletteSwatch>& before);
    /// After the user's change: the palette is dirty, its record is scheduled and the other models
    /// are told.
    void markPaletteChanged();
    /// After any change: its record is scheduled and the other models are told.
    void announcePalette();
    /// A whole change of the user's, as one: checkpoint, swatches, selection, mark.
    void changePalette(std::vector<PaletteSwatch> to, std::optional<std::size_t> selecting = {},
                       std::string_view coalescing = {});
    void insertSwatch(PaletteSwatch swatch, std::size_t at);
    /// With the notice, when it is.
    bool refusesAsFull() const;
    void selectDuplicate(std::size_t index, const WashColor& colour);
    void changeSeeds(const Seeds& to, std::string_view coalescing);
    /// Where the dragged swatch stands, when it is one of this palette's.
    std::optional<std::size_t> ownSwatch(const Drag& drag) const;
    /// Selects and reveals.
    void select(std::size_t index);
    /// With a fresh identifier and the name as swatches have it.
    PaletteSwatch freshSwatch(const WashColor& colour, std::optional<std::string> name) const;

    /// Where saving puts the palette.
    enum class Home {
        nowhere,      ///< the user is asked
        file,         ///< back to its file
        colourPicker, ///< its file is a colour list of the colour picker
        unwritable,   ///< its file is of a kind that is not written: to the colour picker
        readOnly,     ///< its source is never written: to the colour picker
    };
    Home home() const;
    /// The window's file as the Library knows it.
    PaletteStore::Entry entryOfFile() const;
    void leaveUntitled();
    void attach(PaletteAttachment to);
    /// The palette, as it was at that version, is kept in this file.
    void keep(PaletteAttachment in, std::uint64_t version);
    /// Does it at once, or after what the window's file is being written or moved by.
    void afterSaves(std::function<void()> then);
    void endSave();
    /// The notice about a palette that was kept under a name.
    using Said = std::function<std::string(std::string_view name)>;
    /// In the colour picker; asks when there is a list of that name.
    void saveInPickerAsking(const std::string& as, Said said, Done done);

    const Uuid id_;
    const bool isPrimary_;
    AppContext context_;
    PaletteLocations locations_;
    std::string untitledName_;
    Quote quote_;
    QProperty<Seeds> seeds_;
    QProperty<std::vector<PaletteSwatch>> palette_;
    QProperty<std::uint64_t> paletteVersion_{0};
    QProperty<bool> dirty_{false};
    QProperty<std::optional<PaletteAttachment>> attachment_;
    FileVersion loadedVersion_;
    std::uint64_t saves_ = 0;
    bool restoring_ = false;
    std::unique_ptr<DelayedTask> persistWorkItem_;
    std::vector<QPropertyNotifier> subscriptions_;
    mutable BandsKey bandsKey_;
    mutable std::vector<Harmony::Band> bands_;
    /// Results of background work belong to this window only while it lives, and only the latest
    /// of a kind counts.
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
    std::uint64_t loadTurn_ = 0;
    std::uint64_t contentTurn_ = 0; ///< goes up when another palette is shown
    std::uint64_t pictureTurn_ = 0;
    std::uint64_t pinTurn_ = 0; ///< goes up when pins change their places in the list
    std::optional<PinMove> nextMove_;
    bool readingPin_ = false;
    bool saving_ = false;
    std::deque<std::function<void()>> afterSaves_;
    /// Files to which the user lets this window save translucent swatches opaque, and stylesheets
    /// that it wrote itself.
    std::set<std::filesystem::path> opaqueIn_, ownStylesheets_;
};

/// The first of "Untitled Palette", "Untitled Palette 2", … that is not taken.
std::string freeUntitledName(std::span<const std::string> taken);

} // namespace tintra
