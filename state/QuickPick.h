#pragma once

#include "state/AppState.h"

namespace tintra {

class Preferences;
struct Services;

/// A quick pick while no palette window is open: whatever it was to do, the colour's code goes to
/// the clipboard, and the notice says why when keys asked for more. Main loop.
void quickPickWithoutWindow(const WashColor& colour, AppState::Modifiers modifiers,
                            Services& services, Preferences& preferences);

} // namespace tintra
