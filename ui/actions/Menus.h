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

/// The menus of the bar, each filled when it opens. The caller owns the bar.
void fillMenuBar(QMenuBar& bar, const ContextOf& context);
/// The same menus as submenus, for the More button.
void fillMoreMenu(QMenu& menu, const ContextOf& context);
/// The rows of one menu of the bar.
void fillMenu(QMenu& menu, MenuId id, const ActionContext& context);

/// The context menu of a swatch or of a colour of a harmony.
void fillSwatchMenu(QMenu& menu, const ActionContext& context);
/// The context menu of an empty place of a canvas.
void fillCanvasMenu(QMenu& menu, const ActionContext& context);

/// The context menu of a collapsed window: of the colour that has the focus, and of the window.
void fillStripMenu(QMenu& menu, const ActionContext& context);

/// Every row of the menu of the bar, in order; for tests and for the shortcuts window.
std::vector<ActionId> actionsOf(MenuId id);
/// "File", "Edit" and so on.
const char* menuTitle(MenuId id);

} // namespace tintra
