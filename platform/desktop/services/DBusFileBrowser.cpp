#include "platform/desktop/services/DBusFileBrowser.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QFile>
#include <QStringList>
#include <QUrl>
#include <system_error>
#include <utility>

namespace tintra {

namespace {

/// A file manager that first has to start takes a while.
constexpr int kTimeout = 5000; // milliseconds

QUrl urlOf(const std::filesystem::path& path) {
    return QUrl::fromLocalFile(QFile::decodeName(path.c_str()));
}

} // namespace

DBusFileBrowser::DBusFileBrowser(QDBusConnection bus, OpenFolder fallback)
    : bus_(std::move(bus)), openFolder_(std::move(fallback)) {}

void DBusFileBrowser::reveal(const std::filesystem::path& file) {
    std::error_code failed;
    const auto path = std::filesystem::absolute(file, failed);
    auto call = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.FileManager1"),
                                               QStringLiteral("/org/freedesktop/FileManager1"),
                                               QStringLiteral("org.freedesktop.FileManager1"),
                                               QStringLiteral("ShowItems"));
    call << QStringList{urlOf(path).toString(QUrl::FullyEncoded)} << QString(); // no startup id
    auto* waiting = new QDBusPendingCallWatcher(bus_.asyncCall(call, kTimeout), &calls_);
    QObject::connect(waiting, &QDBusPendingCallWatcher::finished, &calls_,
                     [this, waiting, folder = path.parent_path()] {
                         if (waiting->isError()) openFolder_(folder);
                         waiting->deleteLater();
                     });
}

void DBusFileBrowser::openWithDesktop(const std::filesystem::path& folder) {
    QDesktopServices::openUrl(urlOf(folder));
}

} // namespace tintra
