#include "state/AppState.h"
#include "ui/paste/PasteSheet.h"
#include "ui/shared/Text.h"

namespace tintra {
namespace {

PasteTarget::Words wordsFor(HarmonyMode mode) {
    switch (mode) {
    case HarmonyMode::paletteBuilder:
        return {worded("One per line, or a whole stylesheet. Hex, rgb(), hsl(), oklch(), lab() and "
                       "CSS colour names are understood; a variable’s name becomes the swatch’s."),
                worded("Add to Palette")};
    case HarmonyMode::ramp:
        return {worded("The first value is the first colour and a second value the last. Hex, "
                       "rgb(), hsl() and oklch() are understood."),
                worded("Use as Seeds")};
    default:
        return {worded("The first value is the colour the harmony is built from. Hex, rgb(), hsl() "
                       "and oklch() are understood."),
                worded("Use as Seed")};
    }
}

void take(AppState& state, std::span<const PaletteFile::Swatch> swatches) {
    if (state.mode.value() == HarmonyMode::paletteBuilder)
        state.receiveSwatches(swatches);
    else if (state.mode.value() == HarmonyMode::ramp && swatches.size() > 1)
        state.restoreSeeds({swatches[0].color, swatches[1].color, true});
    else
        state.setSeed(AppState::SeedRole::first, swatches[0].color);
}

} // namespace

PasteTarget pasteTarget(AppState& state) {
    return {[&state] { return wordsFor(state.mode); },
            [&state](std::span<const PaletteFile::Swatch> swatches) { take(state, swatches); },
            state.vision,
            [&state](std::function<void()> changed) {
                return state.mode.addNotifier(std::move(changed));
            }};
}

} // namespace tintra
