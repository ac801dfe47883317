#include "ui/shared/AccessibilityEvents.h"

#include <utility>

namespace tintra {
namespace {

std::function<void(QAccessibleEvent&)>& listener() {
    static std::function<void(QAccessibleEvent&)> told;
    return told;
}

} // namespace

bool isAccessibilityHeard() {
    return QAccessible::isActive() || listener();
}

void tellAccessibility(QAccessibleEvent& event) {
    QAccessible::updateAccessibility(&event);
    if (listener()) listener()(event);
}

void listenToAccessibility(std::function<void(QAccessibleEvent&)> told) {
    listener() = std::move(told);
}

} // namespace tintra
