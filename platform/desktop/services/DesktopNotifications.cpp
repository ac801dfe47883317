#include "platform/desktop/services/DesktopNotifications.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QStringList>
#include <QVariantMap>
#include <cmath>
#include <utility>

namespace tintra {

namespace {

const auto kService = QStringLiteral("org.freedesktop.Notifications");
const auto kPath = QStringLiteral("/org/freedesktop/Notifications");

/// A click that was meant for an earlier notice must not perform the action of the next.
QString actionKey(uint count) {
    return QStringLiteral("act-%1").arg(count);
}

} // namespace

DesktopNotifications::DesktopNotifications(QDBusConnection bus) : bus_(std::move(bus)) {
    bus_.connect(kService, kPath, kService, QStringLiteral("ActionInvoked"), &signals_,
                 SIGNAL(actionInvoked(uint, QString)));
    QObject::connect(&signals_, &NotificationSignals::actionInvoked, &signals_,
                     [this](uint id, const QString& key) { actionInvoked(id, key); });
}

void DesktopNotifications::show(std::string text, double seconds, std::optional<ToastAction> action,
                                ToastPlace) {
    Notice notice{std::move(text), seconds, std::move(action)};
    // What a notice is to replace is known only when that one has been shown.
    if (sending_)
        next_ = std::move(notice);
    else
        send(std::move(notice));
}

void DesktopNotifications::send(Notice notice) {
    sending_ = true;
    shown_ = std::move(notice);
    QStringList actions;
    if (shown_.action)
        actions << actionKey(++count_) << QString::fromStdString(shown_.action->title);
    auto call = QDBusMessage::createMethodCall(kService, kPath, kService, QStringLiteral("Notify"));
    call << QStringLiteral("Tintra") << id_ << QString() // no icon of its own
         << QString::fromStdString(shown_.text) << QString() << actions
         << QVariantMap{{QStringLiteral("transient"), true}}
         << static_cast<int>(std::lround(shown_.seconds * 1000));
    auto* waiting = new QDBusPendingCallWatcher(bus_.asyncCall(call), &signals_);
    QObject::connect(waiting, &QDBusPendingCallWatcher::finished, &signals_, [this, waiting] {
        const QDBusPendingReply<uint> reply = *waiting;
        sent(reply.isError() ? 0 : reply.value());
        waiting->deleteLater();
    });
}

void DesktopNotifications::sent(uint id) {
    id_ = id;
    sending_ = false;
    if (auto next = std::exchange(next_, std::nullopt)) send(std::move(*next));
}

void DesktopNotifications::actionInvoked(uint id, const QString& key) {
    if (id != id_ || key != actionKey(count_) || !shown_.action) return;
    const auto action = std::exchange(shown_.action, std::nullopt);
    action->perform();
}

} // namespace tintra
