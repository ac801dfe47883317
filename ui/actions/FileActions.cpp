// New, open, save, and what becomes of the palette's file.

#include "palettes/PaletteStore.h"
#include "state/Models.h"
#include "ui/actions/ActionRows.h"
#include "ui/program/Windows.h"
#include "ui/shared/Text.h"

#include <QMenu>
#include <algorithm>
#include <filesystem>
#include <vector>

namespace tintra::actionRows {
namespace {

void fillInstallTargets(QMenu& menu, const Context& context) {
    auto& of = state(context);
    for (const auto& target : context.ui.models.store().installTargets())
        menu.addAction(oneLine(target.title), &menu, [&of, target] { of.installFor(target); });
}

/// By its name, and by its folder too where another one has the same name.
QString recentTitle(const std::filesystem::path& file,
                    const std::vector<std::filesystem::path>& all) {
    constexpr std::size_t kLongest = 60;
    const auto name = oneLine(file.filename().string(), kLongest);
    const bool isOnly =
        std::ranges::count(all, file.filename(), &std::filesystem::path::filename) < 2;
    return isOnly ? name
                  : worded("%1 in %2")
                        .arg(name, oneLine(file.parent_path().filename().string(), kLongest));
}

void fillRecent(QMenu& menu, const Context& context) {
    auto& recent = context.ui.models.recentPalettes();
    const auto& files = recent.files().value();
    for (const auto& file : files) {
        auto title = recentTitle(file, files);
        title.replace(u'&', QStringLiteral("&&"));
        menu.addAction(title, &menu, [context, file] { stateInFront(context).open(file); });
    }
    menu.addSeparator();
    menu.addAction(worded("Clear the List"), &menu, [&recent] { recent.clear(); });
}

bool hasRecent(const Context& context) {
    return !context.ui.models.recentPalettes().files().value().empty();
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
    {.value = ActionId::openRecent,
     .raw = "openRecent",
     .text = "Open Recent",
     .in = kEveryWindow,
     .menu = MenuId::file,
     .isEnabled = hasRecent,
     .fill = fillRecent},
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
