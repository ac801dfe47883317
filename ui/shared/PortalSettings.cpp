#include "ui/shared/PortalSettings.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <array>

namespace tintra {
namespace {

const auto kService = QStringLiteral("org.freedesktop.portal.Desktop");
const auto kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const auto kInterface = QStringLiteral("org.freedesktop.portal.Settings");

/// A setting that is followed, and what of ours it decides. Contrast and motion stand under the
/// desktop's own names where portals do not know them yet.
struct Followed {
    const char *group, *key;
    QProperty<bool> DesktopSettings::*decides;
    bool (*meansYes)(const QVariant&);
};
constexpr std::array kFollowed{
    Followed{"org.freedesktop.appearance", "color-scheme", &DesktopSettings::prefersDark,
             [](const QVariant& value) { return value.toUInt() == 1; }},
    Followed{"org.freedesktop.appearance", "contrast", &DesktopSettings::prefersHighContrast,
             [](const QVariant& value) { return value.toUInt() == 1; }},
    Followed{"org.gnome.desktop.a11y.interface", "high-contrast",
             &DesktopSettings::prefersHighContrast,
             [](const QVariant& value) { return value.toBool(); }},
    Followed{"org.gnome.desktop.interface", "enable-animations", &DesktopSettings::reducesMotion,
             [](const QVariant& value) { return !value.toBool(); }},
};

/// `Read` wraps the value in a variant twice, `SettingChanged` once.
QVariant unwrapped(QVariant value) {
    while (value.userType() == qMetaTypeId<QDBusVariant>())
        value = qvariant_cast<QDBusVariant>(value).variant();
    return value;
}

} // namespace

PortalSettings::PortalSettings() {
    auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return;
    bus.connect(kService, kPath, kInterface, QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    for (const auto& followed : kFollowed)
        ask(QString::fromLatin1(followed.group), QString::fromLatin1(followed.key));
}

void PortalSettings::ask(const QString& group, const QString& key) {
    auto call = QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Read"));
    call << group << key;
    auto* watcher =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, group, key] {
        watcher->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (!reply.isError()) take(group, key, reply.value().variant());
    });
}

void PortalSettings::settingChanged(const QString& group, const QString& key,
                                    const QDBusVariant& value) {
    take(group, key, value.variant());
}

void PortalSettings::take(const QString& group, const QString& key, const QVariant& value) {
    for (const auto& followed : kFollowed)
        if (group == QLatin1String(followed.group) && key == QLatin1String(followed.key))
            this->*followed.decides = followed.meansYes(unwrapped(value));
}

} // namespace tintra
