#pragma once

#include "palettes/PaletteStore.h"
#include "platform/Services.h"
#include "state/AppUndo.h"
#include "state/Bench.h"
#include "state/ContrastBoard.h"
#include "state/Preferences.h"
#include "state/VisionSimulation.h"
#include "state/Workspaces.h"

#include <functional>
#include <memory>

namespace tintra {

/// The composition root of the models: every shared model once, put together. Main loop.
class Models {
public:
    Models(Services services, PaletteSurroundings surroundings);
    ~Models();
    Models(const Models&) = delete;
    Models& operator=(const Models&) = delete;

    Preferences& preferences();
    PaletteStore& store();
    AppUndo& undo();
    Bench& bench();
    ContrastBoard& contrast();
    Workspaces& workspaces();
    VisionSimulation& vision();

    /// Which windows a start is to show beside the palette windows.
    struct Opening {
        bool library = false, bench = false, contrast = false;
    };
    /// Reads the settings and, as they say, everything that was there at the last quit. Nothing is
    /// written and no notice is shown before it returns. `openWindow` is called for each palette
    /// window, the primary one first.
    Opening start(const std::function<void(const Uuid& palette)>& openWindow);
    /// Asks about unsaved changes and writes every record; `answered` is told whether the program
    /// may end.
    void quit(std::function<void(bool quits)> answered);

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace tintra
