#pragma once

#include "ui/actions/Menus.h"

class QKeyEvent;
class QWidget;

namespace tintra {

/// Makes the keys of the table act in a window: those of the window anywhere in it. The window
/// hands `performCanvasKey` what no child has taken.
void installShortcuts(QWidget& window, const ContextOf& context);

/// Performs a row whose keys act on a canvas; answers whether one was. Single letters stay out of
/// the desktop's shortcuts, so that they can be typed wherever a field has the keyboard.
bool performCanvasKey(const QKeyEvent& event, const ActionContext& context);

} // namespace tintra
