#pragma once

#include "platform/FileBrowser.h"

#include <QDBusConnection>
#include <QObject>
#include <functional>

namespace tintra {

/// The file manager that answers to org.freedesktop.FileManager1; where none does within five
/// seconds, the folder is opened with whatever program opens folders.
class DBusFileBrowser final : public FileBrowser {
public:
    using OpenFolder = std::function<void(const std::filesystem::path& folder)>;

    explicit DBusFileBrowser(QDBusConnection bus = QDBusConnection::sessionBus(),
                             OpenFolder fallback = openWithDesktop);

    void reveal(const std::filesystem::path& file) override;

    static void openWithDesktop(const std::filesystem::path& folder);

private:
    QDBusConnection bus_;
    OpenFolder openFolder_;
    QObject calls_; ///< owns the calls that wait for an answer
};

} // namespace tintra
