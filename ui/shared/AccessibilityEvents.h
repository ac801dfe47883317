#pragma once

#include <QAccessible>
#include <functional>

namespace tintra {

// Views tell of what they change here rather than to Qt, which passes nothing on where the platform
// has no screen readers. Main loop.

/// Somebody listens: there is a point in finding out what has changed.
bool isAccessibilityHeard();
void tellAccessibility(QAccessibleEvent& event);
/// Has a function hear of everything that is told, besides the platform; an empty one ends that.
void listenToAccessibility(std::function<void(QAccessibleEvent&)> told);

} // namespace tintra
