#pragma once

#include "ui/shared/Canvas.h"

namespace tintra {

/// Whether an item is the one that keys act on. It shows as such also when the pointer chose it:
/// its role is given, and its figure copied, by a key.
inline bool isChosen(const Canvas& canvas, const CanvasItem& item) {
    return canvas.hasFocus() && canvas.focused() >= 0 &&
           &item == canvas.items().data() + canvas.focused();
}

} // namespace tintra
