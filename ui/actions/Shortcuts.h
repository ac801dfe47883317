#pragma once

#include "ui/actions/Menus.h"

class QKeyEvent;
class QWidget;

namespace tintra {

/// Makes the keys of the table that belong to such a window act anywhere in it. For those of a
/// canvas the window hands `performCanvasKey` what a focused canvas has left.
void installShortcuts(QWidget& window, WindowKind kind, const ContextOf& context);

/// Performs a row whose keys act on a canvas; answers whether one was. Such keys, single letters
/// among them, are no shortcuts of the toolkit, so a field that has the keyboard gets them first.
bool performCanvasKey(const QKeyEvent& event, const ActionContext& context);

} // namespace tintra
