#pragma once

#include "tests/TemporaryFolder.h"

#include <QDBusConnection>
#include <QProcess>
#include <QStringList>

namespace tintra {

/// A session bus of a test's own, without the machine's services: nothing of the user's may start.
class PrivateBus {
public:
    PrivateBus() {
        const auto settings = folder_.write(
            "bus.conf", R"(<busconfig><type>session</type><listen>unix:tmpdir=/tmp</listen>
            <policy context="default"><allow own="*"/><allow send_destination="*"/>
            <allow receive_sender="*"/></policy></busconfig>)");
        daemon_.start("dbus-daemon", {"--nofork", "--print-address=1", "--config-file",
                                      QString::fromStdString(settings.string())});
        if (daemon_.waitForReadyRead()) address_ = QString::fromUtf8(daemon_.readLine()).trimmed();
    }
    ~PrivateBus() {
        for (const auto& name : names_)
            QDBusConnection::disconnectFromBus(name);
        daemon_.terminate();
        daemon_.waitForFinished();
    }
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    /// Empty when the daemon does not start.
    const QString& address() const { return address_; }
    /// A connection of a name of its own.
    QDBusConnection connection(const char* name) {
        names_ << QString::fromLatin1(name);
        return QDBusConnection::connectToBus(address_, names_.back());
    }

private:
    TemporaryFolder folder_;
    QProcess daemon_;
    QString address_;
    QStringList names_;
};

} // namespace tintra
