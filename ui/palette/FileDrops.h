#pragma once

#include "ui/Ui.h"
#include "ui/shared/ColourMime.h"

#include <cstddef>
#include <string_view>

class QDropEvent;

namespace tintra {

class AppState;

/// Ctrl asks to move a swatch of another palette instead of copying it; Shift asks to add the
/// swatches of a palette file instead of opening it.
bool asksToMove(const QDropEvent& event);
bool asksToAdd(const QDropEvent& event);

/// A single colour is dragged that the palette would not take.
bool refusesColour(const AppState& state, const QDropEvent& event);

/// A dropped colour before the swatch at `at`; one that moves leaves the palette it came from.
/// Answers whether it was taken; a refusal is shown.
bool receiveColour(Ui& ui, AppState& state, const Drag& drag, std::size_t at, bool moving);

/// Adds the colours of a text that was dropped or pasted, of its first 4 MB; without any it says
/// so. A long text is read in the background; nothing comes of it when the window is closed
/// meanwhile.
void receiveText(Ui& ui, AppState& state, std::string_view text);

/// Takes what was dropped on or pasted into a palette window besides single colours: a palette file
/// is opened (or, when it `adds`, its swatches are added), a picture opens in the picture pane,
/// text gives its colours. Of several files the first that can be taken is.
void receiveFiles(Ui& ui, AppState& state, const Dropped& data, bool adds);

} // namespace tintra
