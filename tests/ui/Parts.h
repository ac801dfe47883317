#pragma once

#include <QWidget>
#include <vector>

namespace tintra::test {

/// The parts of a window that are of a class, which need not be known to the meta-object system.
template <class Part>
std::vector<Part*> partsOf(const QWidget& window) {
    std::vector<Part*> parts;
    for (auto* widget : window.findChildren<QWidget*>())
        if (auto* part = dynamic_cast<Part*>(widget)) parts.push_back(part);
    return parts;
}
template <class Part>
Part& partOf(const QWidget& window) {
    return *partsOf<Part>(window).at(0);
}

} // namespace tintra::test
