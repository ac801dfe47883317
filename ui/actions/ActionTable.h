#pragma once

#include <QKeySequence>
#include <QList>
#include <QString>
#include <span>
#include <string_view>

class QMenu;

namespace tintra {

class BenchWindow;
class ContrastWindow;
class LibraryWindow;
class MainWindow;
class PaletteWindow;
struct Ui;

/// Everything a person can ask for by menu or key, once. Menus, context menus, the More menu, tool
/// buttons, shortcuts and the shortcuts window read one table.
enum class ActionId {
    // File
    newPalette,
    newPaletteHere,
    open,
    openRecent,
    save,
    saveAs,
    duplicatePalette,
    renamePalette,
    installInColourPicker,
    installFor,
    revealPalette,
    trashPalette,
    close,
    quit,
    // Edit
    undo,
    redo,
    copy,
    copyAs,
    pasteColours,
    typeOrPaste,
    clear,
    findInLibrary,
    settings,
    // Palette
    addBlankSwatch,
    openPicture,
    harmony,
    addHarmony,
    clearSeeds,
    sendAllToContrast,
    libraryPalettes,
    // Swatch
    renameSwatch,
    editColour,
    toggleBench,
    sendToContrast,
    sendAsText,
    sendAsGround,
    useAsFirstSeed,
    useAsLastSeed,
    duplicateSwatch,
    moveLeft,
    moveRight,
    sendToPhotoshop,
    sendToIllustrator,
    removeSwatch,
    // Bench
    benchMix,
    benchMixWith,
    benchKeep,
    benchAdjust,
    benchAddToPalette,
    benchRename,
    benchMoveLeft,
    benchMoveRight,
    benchTakeOff,
    // Contrast
    showPair,
    showMatrix,
    showLadder,
    measureWcag,
    measureApca,
    contrastTarget,
    useAsText,
    useAsGround,
    swapRoles,
    editSpecimen,
    sortDarkToLight,
    sortLightToDark,
    sortByLightness,
    copyFigure,
    copyMatrix,
    addEntryToPalette,
    putEntryOnBench,
    renameEntry,
    moveEntryUp,
    moveEntryDown,
    removeEntry,
    // Library
    openListed,
    openListedInNewWindow,
    installListed,
    installListedFor,
    duplicateListed,
    revealListed,
    trashListed,
    addListedSwatch,
    benchListedSwatch,
    addLocation,
    rescanLibrary,
    sortLibrary,
    // View
    libraryRows,
    libraryTiles,
    columns,
    tiles,
    colourEditor,
    picturePane,
    vision,
    codeFormat,
    collapse,
    alwaysOnTop,
    showMenuBar,
    // Window
    openLibrary,
    openBench,
    openContrast,
    openWindows,
    // Help
    shortcuts,
    recentNotices,
    acknowledgements,
    about,
    // Keys alone
    nextVision,
    typicalVision,
    peek,
    nextRegion,
    previousRegion,
    focusNotice,
    focusMenuBar,
    contextMenu,
    copyFavourite1,
    copyFavourite2,
    copyFavourite3,
    copyFavourite4,
    copyFavourite5,
    copyFavourite6,
    copyFavourite7,
    copyFavourite8,
    copyFavourite9,
};

/// The menus of all bars, in order; `none` for what only has a key.
enum class MenuId {
    file,
    edit,
    palette,
    swatch,
    bench,
    contrast,
    library,
    view,
    window,
    help,
    none
};

/// The kinds of main windows.
enum class WindowKind : unsigned { palette = 1, bench = 2, contrast = 4, library = 8 };

/// A set of them.
class WindowKinds {
public:
    constexpr WindowKinds(WindowKind kind) : kinds_(static_cast<unsigned>(kind)) {}
    constexpr bool contains(WindowKind kind) const {
        return (kinds_ & static_cast<unsigned>(kind)) != 0;
    }
    friend constexpr WindowKinds operator|(WindowKinds one, WindowKinds other) {
        one.kinds_ |= other.kinds_;
        return one;
    }

private:
    unsigned kinds_;
};
/// Those that show colours to look at, with a kind of vision.
inline constexpr auto kColourWindows =
    WindowKinds(WindowKind::palette) | WindowKind::bench | WindowKind::contrast;
inline constexpr auto kEveryWindow = kColourWindows | WindowKind::library;

/// What an action acts on.
struct ActionContext {
    Ui& ui;
    MainWindow* window = nullptr; ///< in front; none when no main window is
    // The same by its kind; the others are null.
    PaletteWindow* palette = nullptr;
    BenchWindow* bench = nullptr;
    ContrastWindow* contrast = nullptr;
    LibraryWindow* library = nullptr;
};

/// Where a key acts.
enum class KeyScope {
    window, ///< anywhere in the window
    canvas, ///< only while a canvas has the keyboard, never in a field
};

struct ActionRow {
    ActionId value;
    std::string_view raw;  ///< identifier, for tests and other programs
    const char* text;      ///< English source, with an ellipsis when it asks further
    const char* keys = ""; ///< portable key texts, separated by "; "; empty for none
    KeyScope scope = KeyScope::window;
    /// Where it is found and its keys act; several rows may share a key in different windows.
    WindowKinds in = WindowKind::palette;
    MenuId menu = MenuId::none;
    bool (*isEnabled)(const ActionContext&) = nullptr; ///< null: always, in such a window
    void (*perform)(const ActionContext&) = nullptr;   ///< null for what only opens a menu
    bool (*isOn)(const ActionContext&) = nullptr;      ///< null for what is not switched
    QString (*title)(const ActionContext&) = nullptr;  ///< null when `text` is the title
    /// Fills the menu that the row opens; null for a row that opens none.
    void (*fill)(QMenu&, const ActionContext&) = nullptr;
    bool (*isShown)(const ActionContext&) = nullptr; ///< null: in every menu that lists it
};

std::span<const ActionRow> allActions();
const ActionRow& actionRow(ActionId id);
QList<QKeySequence> keySequences(const ActionRow& row);
/// The first of them as menus and tooltips show it; empty for none.
QString keyText(const ActionRow& row);
/// The title now, in the wording of this desktop.
QString actionTitle(const ActionRow& row, const ActionContext& context);
bool isEnabled(const ActionRow& row, const ActionContext& context);
/// Does it when it is enabled; answers whether it was.
bool perform(ActionId id, const ActionContext& context);

} // namespace tintra
