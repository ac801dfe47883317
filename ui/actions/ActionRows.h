#pragma once

#include "state/AppState.h"
#include "ui/actions/ActionTable.h"
#include "ui/palette/PaletteWindow.h"

#include <span>

// The rows of the action table, menu by menu, and what their functions share.

namespace tintra::actionRows {

using Context = ActionContext;
using Target = ActionTarget;

std::span<const ActionRow> ofFile();
std::span<const ActionRow> ofEdit();
std::span<const ActionRow> ofPalette();
std::span<const ActionRow> ofSwatch();
std::span<const ActionRow> ofBench();
std::span<const ActionRow> ofContrast();
std::span<const ActionRow> ofLibrary();
std::span<const ActionRow> ofView();
std::span<const ActionRow> ofWindow();
std::span<const ActionRow> ofKeys();

/// Of the palette window in front.
inline AppState& state(const Context& context) {
    return context.palette->state();
}
/// Of the palette window used last, which comes to the front; a new one when there is none.
AppState& stateInFront(const Context& context);
inline bool hasFile(const Context& context) {
    return state(context).currentPaletteURL().has_value();
}
inline bool hasSwatches(const Context& context) {
    return !state(context).swatches().empty();
}
inline bool isBuilder(const Context& context) {
    return state(context).mode.value() == HarmonyMode::paletteBuilder;
}
/// What is asked for cannot be seen in a collapsed window.
inline void unfold(const Context& context) {
    if (state(context).isCollapsed) state(context).toggleCollapsed();
}
inline bool hasTarget(const Context& context) {
    return context.window->target().has_value();
}
/// A swatch of the palette is what actions act on.
inline bool hasSwatch(const Context& context) {
    const auto target = context.window->target();
    return target && target->swatch;
}
/// For rows of palette windows: calls with the place of the swatch acted on, when there is one.
template <class Call>
void withSwatch(const Context& context, Call call) {
    if (const auto target = context.window->target(); target && target->swatch)
        call(state(context), *target->swatch);
}
/// The same with the colour acted on.
template <class Call>
void withTarget(const Context& context, Call call) {
    if (const auto target = context.window->target()) call(state(context), *target);
}

} // namespace tintra::actionRows
