#pragma once

#include <QProperty>

namespace tintra {

/// What the desktop's settings say about how programs are to look, followed live. Main loop.
class DesktopSettings {
public:
    virtual ~DesktopSettings() = default;

    QProperty<bool> prefersDark{false};
    QProperty<bool> prefersHighContrast{false};
    QProperty<bool> reducesMotion{false};
};

} // namespace tintra
