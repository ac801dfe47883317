#pragma once

// Nothing of the standard library: moc of Qt 6.4 cannot parse some of its headers.
#include <QObject>
#include <QString>

namespace tintra {

/// Where the signals of org.freedesktop.Notifications arrive.
class NotificationSignals final : public QObject {
    Q_OBJECT

Q_SIGNALS:
    void actionInvoked(uint id, const QString& key);
};

} // namespace tintra
