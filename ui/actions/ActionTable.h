#pragma once

#include <QKeySequence>
#include <QList>
#include <QString>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

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
    save,
    saveAs,
    duplicatePalette,
    renamePalette,
    installInColourPicker,
    revealPalette,
    trashPalette,
    close,
    quit,
    // Edit
    undo,
    redo,
    copy,
    pasteColours,
    typeOrPaste,
    clear,
    settings,
    // Palette
    addBlankSwatch,
    openPicture,
    addHarmony,
    clearSeeds,
    sendAllToContrast,
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
    removeSwatch,
    // View
    columns,
    tiles,
    colourEditor,
    picturePane,
    nextVision,
    typicalVision,
    collapse,
    alwaysOnTop,
    showMenuBar,
    peek,
    nextRegion,
    previousRegion,
    focusNotice,
    contextMenu,
    // Help
    shortcuts,
    recentNotices,
    acknowledgements,
    about,
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
    std::string_view raw; ///< identifier, for tests and other programs
    const char* text;     ///< English source, with an ellipsis when it asks further
    const char* keys;     ///< portable key texts, separated by "; "; empty for none
    KeyScope scope;
    MenuId menu;
    bool opensGroup; ///< a separator stands before it
    bool (*isEnabled)(const ActionContext&);
    void (*perform)(const ActionContext&);
    bool (*isOn)(const ActionContext&);     ///< null for what is not switched
    QString (*title)(const ActionContext&); ///< null when `text` is the title
};

std::span<const ActionRow> allActions();
const ActionRow& actionRow(ActionId id);
QList<QKeySequence> keySequences(const ActionRow& row);
/// The title now, in the wording of this desktop.
QString actionTitle(const ActionRow& row, const ActionContext& context);

} // namespace tintra
