#pragma once

#include <QPainter>
#include <string_view>

namespace tintra {

class Theme;
struct CanvasItem;

/// How an action of an empty canvas stands.
struct BeginningState {
    bool hovered = false, pressed = false, focused = false;
};

/// Draws one of the actions that an empty canvas offers to begin with: its icon, its name, and its
/// key (the description) where there is room.
void paintBeginning(QPainter& painter, const Theme& theme, const CanvasItem& item,
                    std::string_view icon, BeginningState state);

} // namespace tintra
