#pragma once

#include "colour/Vision.h"
#include "platform/Toasts.h"

#include <QProperty>
#include <optional>
#include <string_view>

namespace tintra {

class Bench;
class ContrastBoard;
class Workspaces;

/// What the window in front offers to menus.
struct FrontCapabilities {
    enum class Clears { palette, seeds, bench, contrast };

    bool hasVision = false;
    std::optional<Clears> clears;
    bool isLibrary = false;
    bool libraryOpened = false; ///< a row of the Library is unfolded
    bool libraryTyping = false; ///< the Library's search field has the keyboard
    /// "Clear Palette" and the like.
    std::string_view clearTitle() const;
    bool operator==(const FrontCapabilities&) const = default;
};

/// The vision of the window in front, whichever model keeps it. Main loop.
class VisionSimulation {
public:
    VisionSimulation(Workspaces& workspaces, Bench& bench, ContrastBoard& contrast);

    /// Which window is in front; ToastWindow::none for one that is neither of these.
    QProperty<ToastPlace> front;

    /// None when no window is in front or it has no vision.
    std::optional<Vision> frontVision() const;
    /// Does nothing then.
    void setFront(Vision vision);
    /// What the front window offers; the Library adds its two itself.
    FrontCapabilities capabilities() const;

private:
    /// Where the front window keeps its vision; none when it has none.
    QProperty<Vision>* visionOfFront() const;

    Workspaces& workspaces_;
    Bench& bench_;
    ContrastBoard& contrast_;
};

} // namespace tintra
