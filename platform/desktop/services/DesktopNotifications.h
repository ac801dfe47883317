#pragma once

#include "platform/Toasts.h"
#include "platform/desktop/services/NotificationSignals.h"

#include <QDBusConnection>

namespace tintra {

/// Notices as notifications of the desktop (org.freedesktop.Notifications), for when there is no
/// window to show them in. A new one replaces the one before. Without such a service, nothing is
/// shown.
class DesktopNotifications final : public Toasts {
public:
    explicit DesktopNotifications(QDBusConnection bus = QDBusConnection::sessionBus());

    void show(std::string text, double seconds, std::optional<ToastAction> action,
              ToastPlace window) override;

private:
    struct Notice {
        std::string text;
        double seconds = 0;
        std::optional<ToastAction> action;
    };

    void send(Notice notice);
    void sent(uint id);
    void actionInvoked(uint id, const QString& key);

    QDBusConnection bus_;
    uint id_ = 0;                ///< of the notification shown last; 0 for none
    uint count_ = 0;             ///< of notices sent
    Notice shown_;               ///< as it was sent
    std::optional<Notice> next_; ///< given while one was being sent
    bool sending_ = false;
    NotificationSignals signals_; ///< owns the calls that wait for an answer
};

} // namespace tintra
