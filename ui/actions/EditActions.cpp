// Undo, the clipboard, and what takes everything away.

#include "state/Models.h"
#include "ui/actions/ActionRows.h"
#include "ui/actions/FormatMenus.h"
#include "ui/program/Windows.h"
#include "ui/shared/Text.h"

namespace tintra::actionRows {
namespace {

bool clearsSomething(const Context& context) {
    return context.window->clears().has_value();
}

QString clearTitle(const Context& context) {
    return shown(FrontCapabilities{.clears = context.window->clears()}.clearTitle());
}

/// The Library's field takes the keyboard when it sees the request.
void findInLibrary(const Context& context) {
    context.ui.windows.openLibrary();
    context.ui.models.preferences().libraryFindRequested = true;
}

void fillCopyAs(QMenu& menu, const Context& context) {
    fillFormatMenu(menu, context.ui, false,
                   [context](ColorFormat format) { context.window->copy(format); });
}

const ActionRow kRows[] = {
    {.value = ActionId::undo,
     .raw = "undo",
     .text = "Undo",
     .keys = "Ctrl+Z",
     .in = kEveryWindow,
     .menu = MenuId::edit,
     .isEnabled = [](const Context& c) { return c.ui.models.undo().canUndo(); },
     .perform = [](const Context& c) { c.ui.models.undo().undo(c.window->place()); },
     .title = [](const Context& c) { return shown(c.ui.models.undo().title()); }},
    {.value = ActionId::redo,
     .raw = "redo",
     .text = "Redo",
     .keys = "Ctrl+Shift+Z; Ctrl+Y",
     .in = kEveryWindow,
     .menu = MenuId::edit,
     .isEnabled = [](const Context& c) { return c.ui.models.undo().canRedo(); },
     .perform = [](const Context& c) { c.ui.models.undo().redo(c.window->place()); },
     .title = [](const Context& c) { return shown(c.ui.models.undo().redoTitle()); }},
    {.value = ActionId::copy,
     .raw = "copy",
     .text = "Copy",
     .keys = "Ctrl+C",
     .in = kEveryWindow,
     .menu = MenuId::edit,
     .isEnabled = [](const Context& c) { return c.window->canCopy(); },
     .perform = [](const Context& c) { c.window->copy(); }},
    {.value = ActionId::copyAs,
     .raw = "copyAs",
     .text = "Copy As",
     .in = kEveryWindow,
     .menu = MenuId::edit,
     .isEnabled = hasTarget,
     .fill = fillCopyAs},
    {.value = ActionId::pasteColours,
     .raw = "pasteColours",
     .text = "Paste Colours",
     .keys = "Ctrl+V",
     .in = kColourWindows,
     .menu = MenuId::edit,
     .perform = [](const Context& c) { c.window->pasteColours(); }},
    {.value = ActionId::typeOrPaste,
     .raw = "typeOrPaste",
     .text = "Type or Paste Values…",
     .keys = "Ctrl+Shift+V",
     .in = kColourWindows,
     .menu = MenuId::edit,
     .perform =
         [](const Context& c) {
             if (c.palette) unfold(c);
             c.window->showPasteSheet();
         }},
    {.value = ActionId::clear,
     .raw = "clear",
     .text = "Clear",
     .keys = "Ctrl+Shift+Del",
     .in = kColourWindows,
     .menu = MenuId::edit,
     .isEnabled = clearsSomething,
     .perform = [](const Context& c) { c.window->clear(); },
     .title = clearTitle},
    {.value = ActionId::findInLibrary,
     .raw = "findInLibrary",
     .text = "Find in Library",
     .keys = "Ctrl+F",
     .in = kEveryWindow,
     .menu = MenuId::edit,
     .perform = findInLibrary},
    {.value = ActionId::settings,
     .raw = "settings",
     .text = "Settings…",
     .keys = "Ctrl+,",
     .in = kEveryWindow,
     .menu = MenuId::edit,
     .perform = [](const Context& c) { c.ui.windows.openSettings(); }},
};

} // namespace

std::span<const ActionRow> ofEdit() {
    return kRows;
}

} // namespace tintra::actionRows
