// The colour editor beside its palette, and in its spaces.

#include "state/AppState.h"
#include "state/Preferences.h"
#include "ui/palette/PaletteWindow.h"
#include "ui/tour/Scenes.h"
#include "ui/tour/Sheet.h"

#include <array>
#include <optional>

namespace tintra::tour {
namespace {

void edit(Stage& stage, std::size_t swatch, std::string_view now) {
    stage.state().editSwatch(swatch);
    stage.settle();
    auto buffer = *stage.state().editorBuffer.value();
    buffer.color = colour(now);
    stage.state().editorBuffer = buffer;
    stage.settle();
}

QImage editor(Stage& stage) {
    auto palette = harbourLight();
    palette.colours[6] = colour("b9694a");
    stage.fill(palette, {1280, 688});
    edit(stage, 6, "e4572e");
    stage.window().resize(1280, 688);
    return stage.grab(stage.window());
}

/// What is shown of a panel in a space: cut from its window.
QImage panel(Stage& stage, std::size_t swatch, std::string_view now, EditorSpace space,
             PickerStyle picker) {
    stage.preferences().editorSpace = space;
    stage.preferences().editorPicker = picker;
    edit(stage, swatch, now);
    auto& window = stage.window();
    const auto width = stage.ui().theme.scaled(312);
    window.resize(960, stage.ui().theme.scaled(672 + 44 + 40));
    const auto whole = stage.grab(window);
    const auto ratio = window.devicePixelRatioF();
    const auto head = stage.ui().theme.scaled(44), foot = stage.ui().theme.scaled(40);
    const QRectF in(window.width() - width, head, width, window.height() - head - foot);
    return whole.copy(QRectF(in.topLeft() * ratio, in.size() * ratio).toAlignedRect());
}

QImage spaces(Stage& stage) {
    stage.fill(harbourLight(), {960, 700});
    return sheet({panel(stage, 2, "2f8fe0", EditorSpace::cmyk, PickerStyle::wheel),
                  panel(stage, 9, "3f6a45", EditorSpace::lab, PickerStyle::plane),
                  panel(stage, 8, "cbae82", EditorSpace::rgb, PickerStyle::plane),
                  panel(stage, 5, "f4a93b", EditorSpace::hsb, PickerStyle::wheel),
                  panel(stage, 6, "e4572e", EditorSpace::hsl, PickerStyle::plane),
                  panel(stage, 10, "9db17c", EditorSpace::oklch, PickerStyle::wheel)},
                 3);
}

constexpr std::array kScenes{
    Scene{"palette-editor", kBoth, editor},
    Scene{"colour-editor-spaces", kLight, spaces},
};

} // namespace

std::span<const Scene> editorScenes() {
    return kScenes;
}

} // namespace tintra::tour
