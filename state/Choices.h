#pragma once

#include <optional>
#include <span>
#include <string_view>

// The closed lists that settings and records choose from. Each is a table of its persisted texts in
// Choices.cpp; `rawValue` answers the text of a case, `choice` the case of a text.

namespace tintra {

/// Window appearance.
enum class Appearance { system, light, dark };
/// Text size of the interface: 1, 1.15 or 1.3 times.
enum class TypeSize { regular, larger, largest };
/// What is drawn behind translucent swatches; `strips` are a black and a white half.
enum class SwatchBackdrop { checkerboard, ground, white, black, custom, strips };
/// The colour editor's picker.
enum class PickerStyle { plane, wheel };
/// The colour space of the colour editor's sliders.
enum class EditorSpace { rgb, hsb, hsl, cmyk, lab, oklch };
/// The tabs of the settings window.
enum class SettingsTab { general, library, colour, code, shortcuts };
/// The key combinations offered for the global pick.
enum class HotKeyCombo {
    optionCommandP,
    controlOptionCommandP,
    optionCommandK,
    controlOptionCommandC
};
/// How a palette is shown.
enum class PaletteDisplay { columns, tiles };
/// The share of a palette window that the picture pane takes.
enum class PictureShare { third, half, twoThirds };
/// What a start brings back.
enum class OpeningState { resume, clean };
/// The side of the screen on which a window hangs.
enum class HangSide { left, right };
/// How a collapsed strip lies.
enum class CompactOrientation { horizontal, vertical };

std::string_view rawValue(Appearance value);
std::string_view rawValue(TypeSize value);
std::string_view rawValue(SwatchBackdrop value);
std::string_view rawValue(PickerStyle value);
std::string_view rawValue(EditorSpace value);
std::string_view rawValue(SettingsTab value);
std::string_view rawValue(HotKeyCombo value);
std::string_view rawValue(PaletteDisplay value);
std::string_view rawValue(PictureShare value);
std::string_view rawValue(OpeningState value);
std::string_view rawValue(HangSide value);
std::string_view rawValue(CompactOrientation value);

/// The case of a persisted text; nothing for an unknown one. Instantiated for every list above.
template <class Case>
std::optional<Case> choice(std::string_view raw);

/// Every case in menu order. Instantiated for every list above.
template <class Case>
std::span<const Case> allChoices();

} // namespace tintra
