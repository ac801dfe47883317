#pragma once

#include "platform/Uuid.h"

#include <functional>
#include <optional>
#include <string>

namespace tintra {

/// The kinds of windows in which a notice can be shown.
enum class ToastWindow {
    palette,
    bench,
    contrast,
    library,
    settings,
    none, ///< no window at all: a notification of the desktop
};

/// Where a notice is shown.
struct ToastPlace {
    ToastWindow window = ToastWindow::none;
    Uuid palette; ///< which palette window
    bool operator==(const ToastPlace&) const = default;
};

/// The one thing that a notice offers to do.
struct ToastAction {
    std::string title; ///< "Undo"
    std::function<void()> perform;
};

/// Shows short notices, each for a time. Main loop.
class Toasts {
public:
    virtual ~Toasts() = default;

    /// A notice in the same window is replaced.
    virtual void show(std::string text, double seconds, std::optional<ToastAction> action,
                      ToastPlace window) = 0;
};

} // namespace tintra
