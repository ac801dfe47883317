#pragma once

#include "platform/Toasts.h"
#include "platform/Uuid.h"

#include <QWidget>
#include <functional>
#include <vector>

namespace tintra {

class PaletteWindow;

/// The windows that are open. Main loop.
class Windows {
public:
    virtual ~Windows() = default;

    /// The window of a palette; none while it is closed.
    virtual PaletteWindow* palette(const Uuid& id) const = 0;
    /// Every palette window, in opening order.
    virtual std::vector<PaletteWindow*> palettes() const = 0;
    /// The window that a notice or a dialogue belongs to; none when it is closed.
    virtual QWidget* window(const ToastPlace& place) const = 0;

    /// Makes the window of a model that Workspaces holds, and shows it.
    virtual void openPalette(const Uuid& id) = 0;
    /// Asks about unsaved changes, then closes.
    virtual void closePalette(const Uuid& id) = 0;
    // Each the one of its kind; brought to the front when it is open.
    virtual void openBench() = 0;
    virtual void openContrast() = 0;
    virtual void openLibrary() = 0;
    virtual void openSettings() = 0;
    virtual void openShortcuts() = 0;
    virtual void openAbout() = 0;
    virtual void openAcknowledgements() = 0;
    /// Asks every window, then ends the program.
    virtual void quit() = 0;
};

} // namespace tintra
