#pragma once

#include <QApplication>

namespace tintra::bench {

/// The one application of a benchmark that paints, without a screen.
inline QApplication& offscreenApplication() {
    static int count = 1;
    static char name[] = "benchmark";
    static char* names[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QApplication application(count, names);
    return application;
}

} // namespace tintra::bench
