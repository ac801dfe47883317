// Undo, the clipboard, and what takes everything away.

#include "platform/Clipboard.h"
#include "platform/Services.h"
#include "state/Models.h"
#include "ui/actions/ActionRows.h"
#include "ui/actions/FormatMenus.h"
#include "ui/palette/FileDrops.h"
#include "ui/program/Windows.h"
#include "ui/shared/ColourMime.h"
#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Text.h"

#include <QClipboard>
#include <QGuiApplication>

namespace tintra::actionRows {
namespace {

/// Text and colours are the models' to read; only files and pictures are taken from the desktop's
/// clipboard itself.
void pasteColours(const Context& context) {
    auto& to = state(context);
    const auto held = context.ui.services.clipboard.content();
    if (!held.text.empty()) {
        receiveText(context.ui, to, held.text);
        return;
    }
    if (held.colour) {
        const auto& [r, g, b, a] = *held.colour;
        to.addToPalette({r, g, b, a}, AppState::Duplicates::refuse);
        return;
    }
    const auto* mime = QGuiApplication::clipboard()->mimeData();
    if (!mime) return;
    const auto found = dropped(*mime);
    if (!found.isEmpty() && !found.colour) receiveFiles(context.ui, to, found, false);
}

void clear(const Context& context) {
    if (isBuilder(context))
        state(context).clearPalette();
    else
        state(context).clearSeeds();
}

QString clearTitle(const Context& context) {
    using Clears = FrontCapabilities::Clears;
    return shown(FrontCapabilities{.clears = isBuilder(context) ? Clears::palette : Clears::seeds}
                     .clearTitle());
}

void fillCopyAs(QMenu& menu, const Context& context) {
    fillFormatMenu(menu, context.ui, false, [context](ColorFormat format) {
        withTarget(context, [format](AppState& of, const Target& target) {
            of.copy(target.color, target.name, format);
        });
    });
}

const ActionRow kRows[] = {
    {.value = ActionId::undo,
     .raw = "undo",
     .text = "Undo",
     .keys = "Ctrl+Z",
     .menu = MenuId::edit,
     .isEnabled = [](const Context& c) { return c.ui.models.undo().canUndo(); },
     .perform = [](const Context& c) { c.ui.models.undo().undo(state(c).place()); },
     .title = [](const Context& c) { return shown(c.ui.models.undo().title()); }},
    {.value = ActionId::redo,
     .raw = "redo",
     .text = "Redo",
     .keys = "Ctrl+Shift+Z; Ctrl+Y",
     .menu = MenuId::edit,
     .isEnabled = [](const Context& c) { return c.ui.models.undo().canRedo(); },
     .perform = [](const Context& c) { c.ui.models.undo().redo(state(c).place()); },
     .title = [](const Context& c) { return shown(c.ui.models.undo().redoTitle()); }},
    {.value = ActionId::copy,
     .raw = "copy",
     .text = "Copy",
     .keys = "Ctrl+C",
     .menu = MenuId::edit,
     .isEnabled = hasTarget,
     .perform =
         [](const Context& c) {
             withTarget(
                 c, [](AppState& of, const Target& target) { of.copy(target.color, target.name); });
         }},
    {.value = ActionId::copyAs,
     .raw = "copyAs",
     .text = "Copy As",
     .menu = MenuId::edit,
     .isEnabled = hasTarget,
     .fill = fillCopyAs},
    {.value = ActionId::pasteColours,
     .raw = "pasteColours",
     .text = "Paste Colours",
     .keys = "Ctrl+V",
     .menu = MenuId::edit,
     .perform = pasteColours},
    {.value = ActionId::typeOrPaste,
     .raw = "typeOrPaste",
     .text = "Type or Paste Values…",
     .keys = "Ctrl+Shift+V",
     .menu = MenuId::edit,
     .perform =
         [](const Context& c) {
             unfold(c);
             c.window->showPasteSheet();
         }},
    {.value = ActionId::clear,
     .raw = "clear",
     .text = "Clear",
     .keys = "Ctrl+Shift+Del",
     .menu = MenuId::edit,
     .perform = clear,
     .title = clearTitle},
    {.value = ActionId::settings,
     .raw = "settings",
     .text = "Settings…",
     .keys = "Ctrl+,",
     .menu = MenuId::edit,
     .perform = [](const Context& c) { c.ui.windows.openSettings(); }},
};

} // namespace

std::span<const ActionRow> ofEdit() {
    return kRows;
}

} // namespace tintra::actionRows
