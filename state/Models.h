#pragma once

#include "palettes/PaletteStore.h"
#include "platform/Services.h"
#include "state/AppUndo.h"
#include "state/Backdrops.h"
#include "state/Bench.h"
#include "state/ContrastBoard.h"
#include "state/Preferences.h"
#include "state/RecentPalettes.h"
#include "state/VisionSimulation.h"
#include "state/Workspaces.h"

#include <QProperty>
#include <cstdint>
#include <functional>
#include <memory>

namespace tintra {

/// The composition root of the models: every shared model once, put together. One at a time. Main
/// loop.
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
    RecentPalettes& recentPalettes();

    /// What the interface lays behind colours now; a front end whose theme has surfaces hands it
    /// in.
    void setThemeSurfaces(std::function<ThemeSurfaces()> surfaces);

    /// Which windows a start is to show beside the palette windows.
    struct Opening {
        bool library = false, bench = false, contrast = false;
        bool operator==(const Opening&) const = default;
    };
    /// Reads the settings and, as they say, everything that was there at the last quit. Nothing is
    /// written and no notice is shown before it returns. `openWindow` is called for each palette
    /// window, the primary one first; there is none when only other windows were open.
    Opening start(const std::function<void(const Uuid& palette)>& openWindow);
    // After `start`:

    /// Asks about unsaved changes and writes every record; `answered` is told whether the program
    /// may end. Windows may close then without changing what was written.
    void quit(std::function<void(bool quits)> answered);
    /// Writes every record without asking: for a session that ends.
    void keep();

    /// Reads the palette folders again.
    void rescanPalettes();
    /// Lists the palettes unless that was done before.
    void listPalettes();
    /// Goes up when what the Library lists has changed (it takes PaletteStore::whenChanged).
    const QProperty<std::uint64_t>& libraryVersion() const;

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace tintra
