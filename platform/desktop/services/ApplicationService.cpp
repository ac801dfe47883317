#include "platform/desktop/services/ApplicationService.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QUrl>
#include <QVariantMap>
#include <utility>

namespace tintra {
namespace {

using Files = std::vector<std::filesystem::path>;

const auto kInterface = QStringLiteral("org.freedesktop.Application");
const auto kStartupId = QStringLiteral("desktop-startup-id");
const auto kToken = QStringLiteral("activation-token");
/// A process that ends while it is asked leaves its name to whoever asks once more.
constexpr int kAttempts = 2;
constexpr int kPatience = 5000; // milliseconds, for each attempt

constexpr auto kIntrospection = R"(<interface name="org.freedesktop.Application">
  <method name="Activate">
    <arg type="a{sv}" name="platform-data" direction="in"/>
  </method>
  <method name="Open">
    <arg type="as" name="uris" direction="in"/>
    <arg type="a{sv}" name="platform-data" direction="in"/>
  </method>
  <method name="ActivateAction">
    <arg type="s" name="action-name" direction="in"/>
    <arg type="av" name="parameter" direction="in"/>
    <arg type="a{sv}" name="platform-data" direction="in"/>
  </method>
</interface>
)";

/// "org.tintra.Tintra" stands at "/org/tintra/Tintra".
QString pathOf(const QString& name) {
    auto path = u'/' + name;
    return path.replace(u'.', u'/').replace(u'-', u'_');
}

QVariantMap platformData(const Activation& activation) {
    QVariantMap data;
    if (!activation.startupId.isEmpty()) data.insert(kStartupId, activation.startupId);
    if (!activation.token.isEmpty()) data.insert(kToken, activation.token);
    return data;
}

Activation activationOf(const QVariant& argument) {
    const auto data = qdbus_cast<QVariantMap>(argument);
    return {data.value(kStartupId).toString(), data.value(kToken).toString()};
}

QStringList urisOf(const Files& files) {
    QStringList uris;
    for (const auto& file : files)
        uris << QString::fromLatin1(
            QUrl::fromLocalFile(QString::fromStdString(file.string())).toEncoded());
    return uris;
}

/// What is no file of this machine stays as it is: it cannot be read, and is called by its name.
Files filesOf(const QStringList& uris) {
    Files files;
    for (const auto& uri : uris) {
        const QUrl url(uri);
        files.emplace_back((url.isLocalFile() ? url.toLocalFile() : uri).toStdString());
    }
    return files;
}

} // namespace

Activation Activation::ofEnvironment() {
    return {qEnvironmentVariable("DESKTOP_STARTUP_ID"),
            qEnvironmentVariable("XDG_ACTIVATION_TOKEN")};
}

class ApplicationService::Object final : public QDBusVirtualObject {
public:
    QString introspect(const QString&) const override {
        return QString::fromLatin1(kIntrospection);
    }
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
        if (!call.interface().isEmpty() && call.interface() != kInterface) return false;
        const auto refusal = perform(call);
        if (call.isReplyRequired())
            bus.send(refusal == QDBusError::NoError
                         ? call.createReply()
                         : call.createErrorReply(refusal, QStringLiteral("Tintra cannot do that")));
        return true;
    }

    ApplicationRequests requests;

private:
    QDBusError::ErrorType perform(const QDBusMessage& call) const {
        const auto arguments = call.arguments();
        const auto is = [&call](const char* member, const char* signature) {
            return call.member() == QLatin1String(member) &&
                   call.signature() == QLatin1String(signature);
        };
        if (is("Activate", "a{sv}") && requests.activate) {
            requests.activate(activationOf(arguments.at(0)));
            return QDBusError::NoError;
        }
        if (is("Open", "asa{sv}") && requests.open) {
            requests.open(filesOf(arguments.at(0).toStringList()), activationOf(arguments.at(1)));
            return QDBusError::NoError;
        }
        if (is("ActivateAction", "sava{sv}") && requests.perform) {
            const auto action = arguments.at(0).toString().toStdString();
            return requests.perform(action, activationOf(arguments.at(2)))
                       ? QDBusError::NoError
                       : QDBusError::InvalidArgs;
        }
        return QDBusError::UnknownMethod;
    }
};

ApplicationService::ApplicationService(QString name, QDBusConnection bus)
    : name_(std::move(name)), bus_(std::move(bus)), object_(std::make_unique<Object>()) {}

ApplicationService::~ApplicationService() {
    if (!bus_.isConnected()) return;
    bus_.unregisterService(name_);
    bus_.unregisterObject(pathOf(name_));
}

ApplicationService::Standing ApplicationService::claim(const Wish& wish,
                                                       const Activation& activation) {
    if (!bus_.isConnected()) return Standing::running;
    // Before the name, so that nobody finds the name without the object.
    bus_.registerVirtualObject(pathOf(name_), object_.get());
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        const QDBusReply<QDBusConnectionInterface::RegisterServiceReply> answer =
            bus_.interface()->registerService(name_);
        // A bus that gives no name at all is as good as none.
        if (!answer.isValid() || answer.value() == QDBusConnectionInterface::ServiceRegistered)
            return Standing::running;
        if (handOver(wish, activation)) return Standing::handedOver;
    }
    return Standing::unanswered;
}

bool ApplicationService::handOver(const Wish& wish, const Activation& activation) {
    const auto asks = [&](const char* member, QVariantList arguments) {
        auto call = QDBusMessage::createMethodCall(name_, pathOf(name_), kInterface,
                                                   QString::fromLatin1(member));
        call.setAutoStartService(false);
        call.setArguments(std::move(arguments) << platformData(activation));
        return bus_.call(call, QDBus::Block, kPatience).type() == QDBusMessage::ReplyMessage;
    };
    if (wish.files.empty() && wish.action.empty()) return asks("Activate", {});
    return (wish.files.empty() || asks("Open", {urisOf(wish.files)})) &&
           (wish.action.empty() ||
            asks("ActivateAction", {QString::fromStdString(wish.action), QVariantList()}));
}

void ApplicationService::serve(ApplicationRequests requests) {
    object_->requests = std::move(requests);
}

} // namespace tintra
