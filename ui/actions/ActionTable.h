#pragma once

#include <QKeySequence>
#include <QList>
#include <QString>
#include <span>
#include <string_view>

class QMenu;

namespace tintra {

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
    // View
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

/// The menus of the bar, in order; `none` for what only has a key.
enum class MenuId { file, edit, palette, swatch, view, window, help, none };

/// What an action acts on.
struct ActionContext {
    Ui& ui;
    PaletteWindow* window; ///< the window in front; none when no palette window is
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
    MenuId menu = MenuId::none;
    bool (*isEnabled)(const ActionContext&) = nullptr; ///< null: whenever a window is there
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
