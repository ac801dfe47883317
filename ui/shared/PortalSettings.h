#pragma once

#include "ui/shared/DesktopSettings.h"

#include <QDBusVariant>
#include <QObject>
#include <QString>
#include <QVariant>

namespace tintra {

/// The desktop's settings as its portal tells them (org.freedesktop.portal.Settings), asked without
/// waiting: until the answer, and where no portal answers, the defaults hold.
class PortalSettings final : public QObject, public DesktopSettings {
    Q_OBJECT

public:
    PortalSettings();

private Q_SLOTS:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void ask(const QString& group, const QString& key);
    void take(const QString& group, const QString& key, const QVariant& value);
};

} // namespace tintra
