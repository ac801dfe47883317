// New, open, save, and what becomes of the palette's file.

#include "palettes/PaletteStore.h"
#include "state/Models.h"
#include "ui/actions/ActionRows.h"
#include "ui/program/Windows.h"
#include "ui/shared/Text.h"

#include <QMenu>

namespace tintra::actionRows {
namespace {

void fillInstallTargets(QMenu& menu, const Context& context) {
    auto& of = state(context);
    for (const auto& target : context.ui.models.store().installTargets())
        menu.addAction(oneLine(target.title), &menu, [&of, target] { of.installFor(target); });
}

bool hasInstallTargets(const Context& context) {
    return !context.ui.models.store().installTargets().empty();
}

const ActionRow kRows[] = {
    {.value = ActionId::newPalette,
     .raw = "newPalette",
     .text = "New Palette",
     .keys = "Ctrl+N",
     .menu = MenuId::file,
     .perform = [](const Context& c) { state(c).startNewPalette(); }},
    {.value = ActionId::newPaletteHere,
     .raw = "newPaletteHere",
     .text = "New Palette Here",
     .keys = "Ctrl+Shift+N",
     .in = kEveryWindow,
     .menu = MenuId::file,
     .perform = [](const Context& c) { c.ui.models.workspaces().openExtra(); }},
    {.value = ActionId::open,
     .raw = "open",
     .text = "Open…",
     .keys = "Ctrl+O",
     .in = kEveryWindow,
     .menu = MenuId::file,
     .perform = [](const Context& c) { stateInFront(c).open(); }},
    {.value = ActionId::save,
     .raw = "save",
     .text = "Save",
     .keys = "Ctrl+S",
     .menu = MenuId::file,
     .isEnabled = hasSwatches,
     .perform = [](const Context& c) { state(c).savePalette(); }},
    {.value = ActionId::saveAs,
     .raw = "saveAs",
     .text = "Save As…",
     .keys = "Ctrl+Shift+S",
     .menu = MenuId::file,
     .isEnabled = hasSwatches,
     .perform = [](const Context& c) { c.palette->showExport(); }},
    {.value = ActionId::duplicatePalette,
     .raw = "duplicatePalette",
     .text = "Duplicate Palette…",
     .menu = MenuId::file,
     .isEnabled = hasFile,
     .perform = [](const Context& c) { state(c).duplicatePalette(); }},
    {.value = ActionId::renamePalette,
     .raw = "renamePalette",
     .text = "Rename Palette…",
     .menu = MenuId::file,
     .isEnabled = hasFile,
     .perform = [](const Context& c) { state(c).renamePalette(); }},
    {.value = ActionId::installInColourPicker,
     .raw = "installInColourPicker",
     .text = "Install in Colour Picker…",
     .menu = MenuId::file,
     .isEnabled = hasSwatches,
     .perform = [](const Context& c) { state(c).installInColourPicker(); }},
    {.value = ActionId::installFor,
     .raw = "installFor",
     .text = "Install for",
     .menu = MenuId::file,
     .isEnabled = hasSwatches,
     .fill = fillInstallTargets,
     .isShown = hasInstallTargets},
    {.value = ActionId::revealPalette,
     .raw = "revealPalette",
     .text = "Reveal in File Manager",
     .keys = "Ctrl+R",
     .menu = MenuId::file,
     .isEnabled = hasFile,
     .perform = [](const Context& c) { state(c).revealPalette(); }},
    {.value = ActionId::trashPalette,
     .raw = "trashPalette",
     .text = "Move to Trash",
     .menu = MenuId::file,
     .isEnabled = hasFile,
     .perform = [](const Context& c) { state(c).trashPalette(); }},
    {.value = ActionId::close,
     .raw = "close",
     .text = "Close",
     .keys = "Ctrl+W",
     .in = kEveryWindow,
     .menu = MenuId::file,
     .perform = [](const Context& c) { c.window->close(); }},
    {.value = ActionId::quit,
     .raw = "quit",
     .text = "Quit",
     .keys = "Ctrl+Q",
     .in = kEveryWindow,
     .menu = MenuId::file,
     .perform = [](const Context& c) { c.ui.windows.quit(); }},
};

} // namespace

AppState& stateInFront(const Context& context) {
    if (context.palette) return state(context);
    auto& workspaces = context.ui.models.workspaces();
    auto* front = workspaces.front();
    auto& state = front ? *front : workspaces.openPrimary();
    context.ui.windows.openPalette(state.id());
    return state;
}

std::span<const ActionRow> ofFile() {
    return kRows;
}

} // namespace tintra::actionRows
