#include "platform/desktop/pictures/SvgApplication.h"

#include <QGuiApplication>
#include <clocale>
#include <string>

namespace tintra {

namespace {

/// The smallest platform that has fonts. It is never taken down: Qt's own statics would be gone by
/// the time that this library is closed.
void makeApplication() {
    static char name[] = "tintra", option[] = "-platform", platform[] = "minimal:enable_fonts";
    static char* arguments[] = {name, option, platform, nullptr};
    static int count = 3;
    // The application object takes the user's locale over for the whole process.
    const std::string before = std::setlocale(LC_ALL, nullptr); // NOLINT(concurrency-mt-unsafe)
    static const auto* const application = new QGuiApplication(count, arguments);
    static_cast<void>(application);
    static_cast<void>(std::setlocale(LC_ALL, before.c_str())); // NOLINT(concurrency-mt-unsafe)
}

} // namespace

bool ensureSvgApplication() {
    if (QCoreApplication::instance() == nullptr) makeApplication();
    return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
}

} // namespace tintra
