// How a window shows its palette.

#include "state/Models.h"
#include "ui/actions/ActionRows.h"
#include "ui/actions/FormatMenus.h"

#include <QGuiApplication>

namespace tintra::actionRows {
namespace {

bool shows(const Context& context, PaletteDisplay display) {
    return context.palette->display() == display;
}

void togglePicturePane(const Context& context) {
    unfold(context);
    auto& of = state(context);
    if (of.isPictureWindowOpen.value())
        of.closePicture();
    else
        of.isPictureWindowOpen = true;
}

/// Wayland lets no program raise itself above the others.
bool placesItself(const Context&) {
    return !QGuiApplication::platformName().startsWith(u"wayland");
}

void fillFormats(QMenu& menu, const Context& context) {
    fillFormatMenu(menu, context.ui, true, [&ui = context.ui](ColorFormat format) {
        ui.models.preferences().format = format;
    });
}

const ActionRow kRows[] = {
    {.value = ActionId::columns,
     .raw = "columns",
     .text = "Columns",
     .keys = "Ctrl+1",
     .menu = MenuId::view,
     .isEnabled = isBuilder,
     .perform = [](const Context& c) { c.palette->setDisplay(PaletteDisplay::columns); },
     .isOn = [](const Context& c) { return shows(c, PaletteDisplay::columns); }},
    {.value = ActionId::tiles,
     .raw = "tiles",
     .text = "Tiles",
     .keys = "Ctrl+2",
     .menu = MenuId::view,
     .isEnabled = isBuilder,
     .perform = [](const Context& c) { c.palette->setDisplay(PaletteDisplay::tiles); },
     .isOn = [](const Context& c) { return shows(c, PaletteDisplay::tiles); }},
    {.value = ActionId::colourEditor,
     .raw = "colourEditor",
     .text = "Colour Editor",
     .keys = "Ctrl+E",
     .menu = MenuId::view,
     .isEnabled = hasSwatches,
     .perform =
         [](const Context& c) {
             unfold(c);
             state(c).toggleEditor();
         },
     .isOn = [](const Context& c) { return state(c).editorBuffer.value().has_value(); }},
    {.value = ActionId::picturePane,
     .raw = "picturePane",
     .text = "Picture Pane",
     .keys = "Ctrl+I",
     .menu = MenuId::view,
     .perform = togglePicturePane,
     .isOn = [](const Context& c) { return state(c).isPictureWindowOpen.value(); }},
    {.value = ActionId::vision,
     .raw = "vision",
     .text = "Vision",
     .in = kColourWindows,
     .menu = MenuId::view,
     .fill = [](QMenu& menu,
                const Context& c) { fillVisionMenu(menu, *c.window->vision(), c.ui.theme); }},
    {.value = ActionId::codeFormat,
     .raw = "codeFormat",
     .text = "Code Format",
     .in = kEveryWindow,
     .menu = MenuId::view,
     .fill = fillFormats},
    {.value = ActionId::collapse,
     .raw = "collapse",
     .text = "Collapse",
     .keys = "Ctrl+M",
     .menu = MenuId::view,
     .perform = [](const Context& c) { state(c).toggleCollapsed(); },
     .isOn = [](const Context& c) { return state(c).isCollapsed.value(); }},
    {.value = ActionId::alwaysOnTop,
     .raw = "alwaysOnTop",
     .text = "Always on Top",
     .menu = MenuId::view,
     .isEnabled = placesItself,
     .perform =
         [](const Context& c) {
             auto& onTop = c.ui.models.preferences().alwaysOnTop;
             onTop = !onTop.value();
         },
     .isOn = [](const Context& c) { return c.ui.models.preferences().alwaysOnTop.value(); }},
    {.value = ActionId::showMenuBar,
     .raw = "showMenuBar",
     .text = "Show Menu Bar",
     .in = kEveryWindow,
     .menu = MenuId::view,
     .perform = [](const Context& c) { c.window->toggleMenuBar(); },
     .isOn = [](const Context& c) { return c.window->showsMenuBar(); }},
};

} // namespace

std::span<const ActionRow> ofView() {
    return kRows;
}

} // namespace tintra::actionRows
