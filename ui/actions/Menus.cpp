#include "ui/actions/Menus.h"

#include "state/Models.h"
#include "ui/frame/MainWindow.h"
#include "ui/shared/Text.h"

#include <QMenu>
#include <QMenuBar>
#include <array>
#include <optional>
#include <span>

namespace tintra {
namespace {

using enum ActionId;
/// A row of a menu; nothing for a line between groups.
using MenuRow = std::optional<ActionId>;
constexpr std::nullopt_t kLine = std::nullopt;

constexpr MenuRow kFile[] = {newPalette,
                             newPaletteHere,
                             open,
                             openRecent,
                             kLine,
                             save,
                             saveAs,
                             duplicatePalette,
                             renamePalette,
                             installInColourPicker,
                             installFor,
                             revealPalette,
                             trashPalette,
                             kLine,
                             ActionId::close,
                             quit};
constexpr MenuRow kEdit[] = {undo,        redo,  kLine,         copy,  copyAs, pasteColours,
                             typeOrPaste, kLine, findInLibrary, clear, kLine,  settings};
constexpr MenuRow kPalette[] = {addBlankSwatch, openPicture,    kLine, harmony,
                                addHarmony,     clearSeeds,     kLine, sendAllToContrast,
                                kLine,          libraryPalettes};
constexpr MenuRow kSwatch[] = {copy,         copyAs,          renameSwatch,      editColour,
                               kLine,        toggleBench,     sendToContrast,    sendAsText,
                               sendAsGround, kLine,           useAsFirstSeed,    useAsLastSeed,
                               kLine,        duplicateSwatch, moveLeft,          moveRight,
                               kLine,        sendToPhotoshop, sendToIllustrator, kLine,
                               removeSwatch};
constexpr MenuRow kBench[] = {benchMix,       benchMixWith,   benchAdjust,       benchKeep,
                              kLine,          sendToContrast, sendAsText,        sendAsGround,
                              kLine,          benchRename,    benchAddToPalette, benchMoveLeft,
                              benchMoveRight, kLine,          benchTakeOff};
constexpr MenuRow kBenchColumn[] = {
    copy,           copyAs,         kLine,        benchMix,    benchMixWith,      kLine,
    sendToContrast, sendAsText,     sendAsGround, kLine,       benchAddToPalette, benchRename,
    benchMoveLeft,  benchMoveRight, kLine,        benchTakeOff};
constexpr MenuRow kBenchWell[] = {benchKeep, benchAdjust,       kLine, copy,
                                  copyAs,    benchAddToPalette, kLine, benchTakeOff};
constexpr MenuRow kBenchCanvas[] = {pasteColours, typeOrPaste, kLine, clear};
constexpr MenuRow kContrast[] = {
    showPair,        showMatrix,      showLadder,      kLine,         measureWcag,
    measureApca,     contrastTarget,  kLine,           useAsText,     useAsGround,
    swapRoles,       editSpecimen,    kLine,           copyFigure,    copyMatrix,
    kLine,           sortDarkToLight, sortLightToDark, kLine,         addEntryToPalette,
    putEntryOnBench, renameEntry,     moveEntryUp,     moveEntryDown, removeEntry};
constexpr MenuRow kContrastEntry[] = {
    useAsText, useAsGround, kLine,       copy,          copyAs, addEntryToPalette, putEntryOnBench,
    kLine,     renameEntry, moveEntryUp, moveEntryDown, kLine,  removeEntry};
constexpr MenuRow kLibrary[] = {openListed,      openListedInNewWindow, kLine,
                                installListed,   installListedFor,      duplicateListed,
                                revealListed,    trashListed,           kLine,
                                addListedSwatch, benchListedSwatch,     kLine,
                                addLocation,     rescanLibrary,         sortLibrary};
constexpr MenuRow kListed[] = {openListed,       openListedInNewWindow, kLine,        installListed,
                               installListedFor, duplicateListed,       revealListed, kLine,
                               trashListed};
constexpr MenuRow kListedSwatch[] = {
    copy,           copyAs,     kLine,       addListedSwatch, benchListedSwatch,
    sendToContrast, sendAsText, sendAsGround};
constexpr MenuRow kListedCanvas[] = {addLocation, rescanLibrary, kLine, sortLibrary};
constexpr MenuRow kView[] = {libraryRows,  libraryTiles, columns,     tiles,      kLine,
                             colourEditor, picturePane,  kLine,       vision,     codeFormat,
                             kLine,        collapse,     alwaysOnTop, showMenuBar};
constexpr MenuRow kWindow[] = {openLibrary, openBench, openContrast};
constexpr MenuRow kHelp[] = {shortcuts, recentNotices, kLine, acknowledgements, about};
constexpr MenuRow kCanvas[] = {pasteColours, typeOrPaste, addBlankSwatch, kLine, openPicture};

constexpr MenuRow kStrip[] = {copy,           copyAs, kLine,        toggleBench,
                              sendToContrast, kLine,  pasteColours, kLine,
                              removeSwatch,   kLine,  collapse};

struct MenuOfBar {
    MenuId id;
    const char* title;
    std::span<const MenuRow> rows;
    WindowKinds in = kEveryWindow; ///< whose bar it stands in
};
const std::array kMenus{
    MenuOfBar{MenuId::file, "File", kFile},
    MenuOfBar{MenuId::edit, "Edit", kEdit},
    MenuOfBar{MenuId::palette, "Palette", kPalette, WindowKind::palette},
    MenuOfBar{MenuId::swatch, "Swatch", kSwatch, WindowKind::palette},
    MenuOfBar{MenuId::bench, "Bench", kBench, WindowKind::bench},
    MenuOfBar{MenuId::contrast, "Contrast", kContrast, WindowKind::contrast},
    MenuOfBar{MenuId::library, "Library", kLibrary, WindowKind::library},
    MenuOfBar{MenuId::view, "View", kView},
    MenuOfBar{MenuId::window, "Window", kWindow},
    MenuOfBar{MenuId::help, "Help", kHelp},
};

const MenuOfBar& menuOf(MenuId id) {
    return kMenus.at(static_cast<std::size_t>(id));
}

void addSubmenu(QMenu& menu, const ActionRow& row, const ActionContext& context) {
    auto* sub = menu.addMenu(actionTitle(row, context));
    sub->menuAction()->setEnabled(isEnabled(row, context));
    // Only what is looked into is filled.
    QObject::connect(sub, &QMenu::aboutToShow, sub, [sub, fill = row.fill, context] {
        if (sub->isEmpty()) fill(*sub, context);
    });
}

void addRow(QMenu& menu, const ActionRow& row, const ActionContext& context) {
    if (!row.in.contains(context.window->kind())) return;
    if (row.isShown && !row.isShown(context)) return;
    if (row.fill) {
        addSubmenu(menu, row, context);
        return;
    }
    auto title = actionTitle(row, context);
    title.replace(u'&', QStringLiteral("&&"));
    auto* action = menu.addAction(title);
    // The window's own shortcuts listen; here the key is only shown.
    action->setShortcuts(keySequences(row));
    action->setShortcutContext(Qt::WidgetShortcut);
    action->setEnabled(isEnabled(row, context));
    if (row.isOn) {
        action->setCheckable(true);
        action->setChecked(row.isOn(context));
    }
    QObject::connect(action, &QAction::triggered, &menu,
                     [id = row.value, context] { perform(id, context); });
}

void addRows(QMenu& menu, std::span<const MenuRow> rows, const ActionContext& context) {
    for (const auto& row : rows) {
        if (row)
            addRow(menu, actionRow(*row), context);
        else
            menu.addSeparator();
    }
}

void fillWhenOpened(QMenu& menu, MenuId id, const ContextOf& context) {
    QObject::connect(&menu, &QMenu::aboutToShow, &menu, [&menu, id, context] {
        menu.clear();
        fillMenu(menu, id, context());
    });
}

} // namespace

void fillMenu(QMenu& menu, MenuId id, const ActionContext& context) {
    addRows(menu, menuOf(id).rows, context);
    if (id != MenuId::window) return;
    // The windows themselves, without a menu between.
    menu.addSeparator();
    actionRow(openWindows).fill(menu, context);
}

void fillMenuBar(QMenuBar& bar, WindowKind kind, const ContextOf& context) {
    for (const auto& menu : kMenus)
        if (menu.in.contains(kind))
            fillWhenOpened(*bar.addMenu(u'&' + worded(menu.title)), menu.id, context);
}

bool hasMenu(WindowKind kind, MenuId id) {
    return id != MenuId::none && menuOf(id).in.contains(kind);
}

void fillMoreMenu(QMenu& menu, const ContextOf& context) {
    const auto kind = context().window->kind();
    for (const auto& one : kMenus)
        if (one.in.contains(kind))
            fillWhenOpened(*menu.addMenu(worded(one.title)), one.id, context);
}

void fillSwatchMenu(QMenu& menu, const ActionContext& context) {
    addRows(menu, kSwatch, context);
}

void fillBenchMenu(QMenu& menu, bool onItem, const ActionContext& context) {
    const auto active = context.ui.models.bench().benchActive.value();
    const bool isWell = active && active->kind == BenchSelection::Of::well;
    if (!onItem)
        addRows(menu, kBenchCanvas, context);
    else
        addRows(menu, isWell ? std::span<const MenuRow>(kBenchWell) : kBenchColumn, context);
}

void fillCanvasMenu(QMenu& menu, const ActionContext& context) {
    addRows(menu, kCanvas, context);
}

void fillStripMenu(QMenu& menu, const ActionContext& context) {
    addRows(menu, kStrip, context);
}

void fillContrastEntryMenu(QMenu& menu, const ActionContext& context) {
    addRows(menu, kContrastEntry, context);
}

void fillListedMenu(QMenu& menu, const ActionContext& context) {
    addRows(menu, kListed, context);
}

void fillListedSwatchMenu(QMenu& menu, const ActionContext& context) {
    addRows(menu, kListedSwatch, context);
}

void fillListedCanvasMenu(QMenu& menu, const ActionContext& context) {
    addRows(menu, kListedCanvas, context);
}

std::vector<ActionId> actionsOf(MenuId id) {
    std::vector<ActionId> all;
    if (id == MenuId::none) return all;
    for (const auto& row : menuOf(id).rows)
        if (row) all.push_back(*row);
    if (id == MenuId::window) all.push_back(openWindows);
    return all;
}

const char* menuTitle(MenuId id) {
    return id == MenuId::none ? "Keys" : menuOf(id).title;
}

} // namespace tintra
