#pragma once

#include "ui/actions/ActionTable.h"

#include <functional>
#include <memory>
#include <vector>

class QMenu;
class QMenuBar;
class QWidget;

namespace tintra {

/// What menus ask when they open: titles, marks and what is enabled change meanwhile.
using ContextOf = std::function<ActionContext()>;

/// The menus that a window of that kind has, each filled when it opens. The caller owns the bar.
void fillMenuBar(QMenuBar& bar, WindowKind kind, const ContextOf& context);
bool hasMenu(WindowKind kind, MenuId id);
/// The same menus as submenus, for the More button.
void fillMoreMenu(QMenu& menu, const ContextOf& context);
/// The rows of one menu that the window has.
void fillMenu(QMenu& menu, MenuId id, const ActionContext& context);

/// The context menu of a swatch or of a colour of a harmony.
void fillSwatchMenu(QMenu& menu, const ActionContext& context);
/// The context menu of what is active on the Bench, or of the Bench itself.
void fillBenchMenu(QMenu& menu, bool onItem, const ActionContext& context);
/// The context menu of an empty place of a palette's canvas.
void fillCanvasMenu(QMenu& menu, const ActionContext& context);
/// The context menu of a collapsed window: of the colour that has the focus, and of the window.
void fillStripMenu(QMenu& menu, const ActionContext& context);
/// The context menu of a colour of the contrast window.
void fillContrastEntryMenu(QMenu& menu, const ActionContext& context);

// The context menus of the Library: of a palette, of a swatch of it, of an empty place.
void fillListedMenu(QMenu& menu, const ActionContext& context);
void fillListedSwatchMenu(QMenu& menu, const ActionContext& context);
void fillListedCanvasMenu(QMenu& menu, const ActionContext& context);

/// Every row of the menu of the bar, in order; for tests and for the shortcuts window.
std::vector<ActionId> actionsOf(MenuId id);
/// "File", "Edit" and so on.
const char* menuTitle(MenuId id);

} // namespace tintra
