// What acts on the palette as a whole.

#include "palettes/PaletteStore.h"
#include "state/Models.h"
#include "ui/actions/ActionRows.h"
#include "ui/actions/FormatMenus.h"
#include "ui/shared/Subscriptions.h"
#include "ui/shared/Text.h"

#include <QMenu>
#include <algorithm>
#include <memory>

namespace tintra::actionRows {
namespace {

/// A menu of more rows than this is no help; the rest is found in the Library.
constexpr int kMostInMenu = 100;

bool isListed(const PaletteEntry& entry) {
    return entry.state == PaletteEntry::State::ready;
}

bool hasLibraryPalettes(const Context& context) {
    auto& models = context.ui.models;
    // Without a scan at the start nothing is known before somebody looks.
    return std::ranges::any_of(models.store().available(), isListed) ||
           !models.preferences().paletteLocations.value().empty();
}

/// What heads the palettes of an entry's group.
QString heading(const PaletteEntry& entry, const Preferences& preferences) {
    switch (entry.group) {
    case PaletteEntry::Group::colourPicker:
        return worded("Colour Picker");
    case PaletteEntry::Group::system:
        return worded("System");
    case PaletteEntry::Group::location:
        break;
    }
    for (const auto& location : preferences.paletteLocations.value())
        if (entry.location == location.id)
            return oneLine(location.nickname.empty() ? location.path.filename().string()
                                                     : location.nickname,
                           60);
    return worded("Other");
}

/// To be named and edited, so it has to be seen.
void addBlankSwatch(const Context& context) {
    unfold(context);
    state(context).enterPaletteBuilder();
    state(context).addBlankSwatch(true);
}

/// A submenu a location, in the order of locations.
void addLibraryPalettes(QMenu& menu, const Context& context) {
    auto& to = state(context);
    const auto& store = context.ui.models.store();
    const PaletteEntry* before = nullptr;
    QMenu* group = nullptr;
    // The palettes of a group stand side by side.
    for (const auto& entry : store.available()) {
        if (!isListed(entry)) continue;
        if (!before || before->group != entry.group || before->location != entry.location)
            group = menu.addMenu(heading(entry, context.ui.models.preferences()));
        before = &entry;
        if (group->actions().size() >= kMostInMenu) continue;
        auto* action = group->addAction(oneLine(entry.name, 60));
        QObject::connect(action, &QAction::triggered, &menu,
                         [&to, entry] { to.loadPalette(entry); });
    }
    if (!menu.isEmpty()) return;
    menu.addAction(
            worded(store.isScanning() ? "Reading the palette folders…" : "No palettes found"))
        ->setEnabled(false);
}

/// What is read while the menu is open comes into it.
void fillLibraryPalettes(QMenu& menu, const Context& context) {
    auto& models = context.ui.models;
    models.listPalettes();
    addLibraryPalettes(menu, context);
    if (!models.store().isScanning()) return;
    auto following = std::make_shared<Subscriptions>();
    following->add(models.libraryVersion(), [&menu, &models, context] {
        if (models.store().isScanning()) return;
        menu.clear();
        addLibraryPalettes(menu, context);
    });
    QObject::connect(&menu, &QObject::destroyed, [following] {});
}

const ActionRow kRows[] = {
    {.value = ActionId::addBlankSwatch,
     .raw = "addBlankSwatch",
     .text = "Add a Blank Swatch",
     .keys = "N",
     .scope = KeyScope::canvas,
     .menu = MenuId::palette,
     .perform = addBlankSwatch},
    {.value = ActionId::openPicture,
     .raw = "openPicture",
     .text = "Open Picture…",
     .keys = "Ctrl+Shift+O",
     .menu = MenuId::palette,
     .perform = [](const Context& c) { state(c).chooseImage(); }},
    {.value = ActionId::harmony,
     .raw = "harmony",
     .text = "Harmony",
     .menu = MenuId::palette,
     .fill = [](QMenu& menu, const Context& c) { fillModeMenu(menu, state(c)); }},
    {.value = ActionId::addHarmony,
     .raw = "addHarmony",
     .text = "Add Harmony to Palette",
     .keys = "H",
     .scope = KeyScope::canvas,
     .menu = MenuId::palette,
     .isEnabled = [](const Context& c) { return !isBuilder(c); },
     .perform = [](const Context& c) { state(c).addHarmonyToPalette(); }},
    {.value = ActionId::clearSeeds,
     .raw = "clearSeeds",
     .text = "Clear Seeds",
     .menu = MenuId::palette,
     .perform = [](const Context& c) { state(c).clearSeeds(); }},
    {.value = ActionId::sendAllToContrast,
     .raw = "sendAllToContrast",
     .text = "Send All to Contrast",
     .keys = "Ctrl+Shift+K",
     .menu = MenuId::palette,
     .isEnabled = hasSwatches,
     .perform = [](const Context& c) { state(c).sendAllToContrast(); }},
    {.value = ActionId::libraryPalettes,
     .raw = "libraryPalettes",
     .text = "Open from the Library",
     .menu = MenuId::palette,
     .isEnabled = hasLibraryPalettes,
     .fill = fillLibraryPalettes},
};

} // namespace

std::span<const ActionRow> ofPalette() {
    return kRows;
}

} // namespace tintra::actionRows
