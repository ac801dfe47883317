#pragma once

#include "ui/palette/CollapsedStrip.h"
#include "ui/palette/PaletteBody.h"
#include "ui/palette/PaletteFoot.h"
#include "ui/palette/PaletteToolBar.h"
#include "ui/palette/PaletteWindow.h"
#include "ui/palette/SeedRow.h"
#include "ui/paste/PasteSheet.h"
#include "ui/picture/PictureBar.h"
#include "ui/shared/Subscriptions.h"

namespace tintra {

/// The pieces of a palette window; the window owns them.
struct PaletteWindow::Parts {
    QWidget* unfolded = nullptr; ///< all but the strip
    PaletteToolBar* toolBar = nullptr;
    SeedRow* seedRow = nullptr;
    PaletteBody* body = nullptr;
    PictureBar* pictureBar = nullptr;
    PaletteFoot* foot = nullptr;
    PasteSheet* pasteSheet = nullptr; ///< made when it is first opened
    CollapsedStrip* strip = nullptr;  ///< made when the window is first collapsed

    bool isClosing = false;
    bool isPlacing = false; ///< the window places itself: not the user's doing
    bool isFolded = false;
    int grownBy = 0; ///< px by which the open editor made it wider
    Subscriptions subscriptions;
};

} // namespace tintra
