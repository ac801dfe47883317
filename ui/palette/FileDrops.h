#pragma once

#include "ui/shared/ColourMime.h"

namespace tintra {

class AppState;

/// Takes what was dropped on or pasted into a palette window besides single colours: a palette file
/// is loaded, a picture opens in the picture pane, text gives its colours. Of several files the
/// first that can be taken is.
void receiveFiles(AppState& state, const Dropped& data);

} // namespace tintra
