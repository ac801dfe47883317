#pragma once

#include <QApplication>

namespace tintra::bench {

/// The one application of a benchmark that paints, without a screen. It stays until the process is
/// gone: at its exit Qt's own statics would be gone before it.
inline QApplication& offscreenApplication() {
    static int count = 1;
    static char name[] = "benchmark";
    static char* names[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static auto* const application = new QApplication(count, names);
    return *application;
}

} // namespace tintra::bench
