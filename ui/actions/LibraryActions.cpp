// What acts on the palettes of the Library.

#include "state/LibraryFiles.h"
#include "state/Models.h"
#include "state/PaletteLocations.h"
#include "ui/actions/ActionRows.h"
#include "ui/library/LibrarySort.h"
#include "ui/library/LibraryWindow.h"
#include "ui/shared/Text.h"

#include <QMenu>

namespace tintra::actionRows {
namespace {

const LibraryPalette* listed(const Context& context) {
    return context.library->model().currentPalette();
}

bool hasListed(const Context& context) {
    return listed(context) != nullptr;
}

bool canOpenListed(const Context& context) {
    const auto* palette = listed(context);
    return palette && palette->state != PaletteEntry::State::unreadable;
}

template <void (LibraryFiles::*act)(const std::string&)>
void withListed(const Context& context) {
    if (const auto* palette = listed(context))
        (context.library->files().*act)(std::string(palette->key));
}

void fillInstallTargets(QMenu& menu, const Context& context) {
    const auto* palette = listed(context);
    if (!palette) return;
    auto& files = context.library->files();
    for (const auto& target : context.ui.models.store().installTargets())
        menu.addAction(oneLine(target.title), &menu,
                       [&files, key = palette->key, target] { files.installFor(key, target); });
}

void addSwatch(const Context& context) {
    if (const auto target = context.window->target())
        stateInFront(context).addToPalette(target->color, AppState::Duplicates::refuse,
                                           target->name);
}

void benchSwatch(const Context& context) {
    if (const auto target = context.window->target())
        context.ui.models.bench().receive({target->color, target->name, DragOfLibrarySwatch{}}, {});
}

bool showsTiles(const Context& context) {
    return context.ui.models.preferences().libraryTiles;
}

const ActionRow kRows[] = {
    {.value = ActionId::openListed,
     .raw = "openListed",
     .text = "Open",
     .keys = "Enter; Return",
     .scope = KeyScope::canvas,
     .in = WindowKind::library,
     .menu = MenuId::library,
     .isEnabled = canOpenListed,
     .perform = withListed<&LibraryFiles::open>},
    {.value = ActionId::openListedInNewWindow,
     .raw = "openListedInNewWindow",
     .text = "Open in New Window",
     .keys = "Alt+Enter; Alt+Return",
     .in = WindowKind::library,
     .menu = MenuId::library,
     .isEnabled = canOpenListed,
     .perform = withListed<&LibraryFiles::openInNewWindow>},
    {.value = ActionId::installListed,
     .raw = "installListed",
     .text = "Install in Colour Picker…",
     .in = WindowKind::library,
     .menu = MenuId::library,
     .isEnabled = canOpenListed,
     .perform = withListed<&LibraryFiles::installInColourPicker>},
    {.value = ActionId::installListedFor,
     .raw = "installListedFor",
     .text = "Install for",
     .in = WindowKind::library,
     .menu = MenuId::library,
     .isEnabled = canOpenListed,
     .fill = fillInstallTargets,
     .isShown = [](const Context& c) { return c.library->model().installsFor(); }},
    {.value = ActionId::duplicateListed,
     .raw = "duplicateListed",
     .text = "Duplicate…",
     .keys = "Ctrl+D",
     .in = WindowKind::library,
     .menu = MenuId::library,
     .isEnabled = hasListed,
     .perform = withListed<&LibraryFiles::duplicate>},
    {.value = ActionId::revealListed,
     .raw = "revealListed",
     .text = "Reveal in File Manager",
     .keys = "Ctrl+R",
     .in = WindowKind::library,
     .menu = MenuId::library,
     .isEnabled = [](const Context& c) { return hasListed(c) && listed(c)->canReveal; },
     .perform = withListed<&LibraryFiles::reveal>},
    {.value = ActionId::trashListed,
     .raw = "trashListed",
     .text = "Move to Trash",
     // In a field the key takes a word away.
     .keys = "Ctrl+Backspace",
     .scope = KeyScope::canvas,
     .in = WindowKind::library,
     .menu = MenuId::library,
     .isEnabled = [](const Context& c) { return hasListed(c) && listed(c)->canTrash; },
     .perform = withListed<&LibraryFiles::trash>},
    {.value = ActionId::addListedSwatch,
     .raw = "addListedSwatch",
     .text = "Add to Palette",
     .keys = "A",
     .scope = KeyScope::canvas,
     .in = WindowKind::library,
     .menu = MenuId::library,
     .isEnabled = hasTarget,
     .perform = addSwatch},
    {.value = ActionId::benchListedSwatch,
     .raw = "benchListedSwatch",
     .text = "Put on the Bench",
     .keys = "B",
     .scope = KeyScope::canvas,
     .in = WindowKind::library,
     .menu = MenuId::library,
     .isEnabled = hasTarget,
     .perform = benchSwatch},
    {.value = ActionId::addLocation,
     .raw = "addLocation",
     .text = "Add a Folder…",
     .in = WindowKind::library,
     .menu = MenuId::library,
     .perform = [](const Context& c) { c.library->locations().add(); }},
    {.value = ActionId::rescanLibrary,
     .raw = "rescanLibrary",
     .text = "Rescan Palette Folders",
     .keys = "F5",
     .in = WindowKind::library,
     .menu = MenuId::library,
     .perform = [](const Context& c) { c.ui.models.rescanPalettes(); }},
    {.value = ActionId::sortLibrary,
     .raw = "sortLibrary",
     .text = "Sort",
     .in = WindowKind::library,
     .menu = MenuId::library,
     .fill = [](QMenu& menu,
                const Context& c) { fillLibrarySortMenu(menu, c.ui.models.preferences()); }},
    {.value = ActionId::libraryRows,
     .raw = "libraryRows",
     .text = "Rows",
     .keys = "Ctrl+1",
     .in = WindowKind::library,
     .menu = MenuId::view,
     .perform = [](const Context& c) { c.ui.models.preferences().libraryTiles = false; },
     .isOn = [](const Context& c) { return !showsTiles(c); }},
    {.value = ActionId::libraryTiles,
     .raw = "libraryTiles",
     .text = "Tiles",
     .keys = "Ctrl+2",
     .in = WindowKind::library,
     .menu = MenuId::view,
     .perform = [](const Context& c) { c.ui.models.preferences().libraryTiles = true; },
     .isOn = showsTiles},
};

} // namespace

std::span<const ActionRow> ofLibrary() {
    return kRows;
}

} // namespace tintra::actionRows
