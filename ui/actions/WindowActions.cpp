// The open windows, and help.

#include "state/Models.h"
#include "ui/actions/ActionRows.h"
#include "ui/program/Windows.h"
#include "ui/shared/NoticeBar.h"
#include "ui/shared/Text.h"

#include <QMenu>

namespace tintra::actionRows {
namespace {

constexpr double kShownAgain = 4; ///< seconds

void fillWindows(QMenu& menu, const Context& context) {
    auto& windows = context.ui.windows;
    for (const auto& id : context.ui.models.workspaces().order().value()) {
        const auto* of = context.ui.models.workspaces().state(id);
        if (!of) continue;
        auto* action = menu.addAction(oneLine(of->title(), 60), &menu,
                                      [&windows, id] { windows.openPalette(id); });
        action->setCheckable(true);
        action->setChecked(context.palette && of == &state(context));
    }
}

/// The newest first; a notice that is chosen is shown again.
void fillNotices(QMenu& menu, const Context& context) {
    const auto& texts = context.ui.notices.texts();
    for (auto text = texts.rbegin(); text != texts.rend(); ++text)
        menu.addAction(oneLine(toUtf8(*text), 100), &menu,
                       [window = context.window, words = *text] {
                           window->notices().present(words, kShownAgain, {});
                       });
}

const ActionRow kRows[] = {
    {.value = ActionId::openLibrary,
     .raw = "openLibrary",
     .text = "Library",
     .keys = "Ctrl+L",
     .in = kEveryWindow,
     .menu = MenuId::window,
     .perform = [](const Context& c) { c.ui.windows.openLibrary(); },
     .isOn = [](const Context& c) { return c.library != nullptr; }},
    {.value = ActionId::openBench,
     .raw = "openBench",
     .text = "Bench",
     .keys = "Ctrl+B",
     .in = kEveryWindow,
     .menu = MenuId::window,
     .perform = [](const Context& c) { c.ui.windows.openBench(); },
     .isOn = [](const Context& c) { return c.bench != nullptr; }},
    {.value = ActionId::openContrast,
     .raw = "openContrast",
     .text = "Contrast",
     .keys = "Ctrl+T",
     .in = kEveryWindow,
     .menu = MenuId::window,
     .perform = [](const Context& c) { c.ui.windows.openContrast(); },
     .isOn = [](const Context& c) { return c.contrast != nullptr; }},
    {.value = ActionId::openWindows,
     .raw = "openWindows",
     .text = "Palettes",
     .in = kEveryWindow,
     .menu = MenuId::window,
     .fill = fillWindows},
    {.value = ActionId::shortcuts,
     .raw = "shortcuts",
     .text = "Keyboard Shortcuts",
     .keys = "F1",
     .in = kEveryWindow,
     .menu = MenuId::help,
     .perform = [](const Context& c) { c.ui.windows.openShortcuts(); }},
    {.value = ActionId::recentNotices,
     .raw = "recentNotices",
     .text = "Recent Notices",
     .in = kEveryWindow,
     .menu = MenuId::help,
     .isEnabled = [](const Context& c) { return !c.ui.notices.texts().empty(); },
     .fill = fillNotices},
    {.value = ActionId::acknowledgements,
     .raw = "acknowledgements",
     .text = "Acknowledgements",
     .in = kEveryWindow,
     .menu = MenuId::help,
     .perform = [](const Context& c) { c.ui.windows.openAcknowledgements(); }},
    {.value = ActionId::about,
     .raw = "about",
     .text = "About Tintra",
     .in = kEveryWindow,
     .menu = MenuId::help,
     .perform = [](const Context& c) { c.ui.windows.openAbout(); }},
};

} // namespace

std::span<const ActionRow> ofWindow() {
    return kRows;
}

} // namespace tintra::actionRows
