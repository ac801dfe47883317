#include "platform/desktop/services/DBusFileBrowser.h"
#include "platform/desktop/services/DesktopNotifications.h"
#include "tests/services/RunningLoop.h"
#include "tests/support/PrivateBus.h"

#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <optional>
#include <vector>

namespace tintra {
namespace {

/// A desktop's service: keeps the calls that reach it and answers each as the test says.
class Service final : public QDBusVirtualObject {
public:
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
        calls.push_back(call);
        return bus.send(answer ? call.createReply(*answer) : call.createErrorReply("a.b", "no"));
    }
    std::vector<QDBusMessage> calls;
    std::optional<QVariantList> answer = QVariantList(); ///< none for an error
};

/// A session bus of the test's own, with a connection for the program and one for a service.
class Bus : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(desktop_.isConnected() && program_.isConnected())
            << "dbus-daemon does not start";
    }
    void serve(const char* name, const char* path) {
        ASSERT_TRUE(desktop_.registerVirtualObject(path, &service_));
        ASSERT_TRUE(desktop_.registerService(name));
    }

    PrivateBus bus_;
    QDBusConnection desktop_ = bus_.connection("desktop"), program_ = bus_.connection("program");
    Service service_;
};

TEST_F(Bus, AFileIsShownByTheFileManagerOrElseItsFolder) {
    std::vector<std::filesystem::path> opened;
    DBusFileBrowser browser(program_, [&](const auto& folder) { opened.push_back(folder); });
    browser.reveal("/tmp/ä b/100%.gpl");
    EXPECT_TRUE(waitFor([&] { return opened.size() == 1; })) << "nobody answers";
    EXPECT_EQ(opened.at(0), "/tmp/ä b");

    serve("org.freedesktop.FileManager1", "/org/freedesktop/FileManager1");
    browser.reveal("/tmp/ä b/100%.gpl");
    EXPECT_TRUE(waitFor([&] { return service_.calls.size() == 1; }));
    const auto& call = service_.calls.at(0);
    EXPECT_EQ(call.member(), "ShowItems");
    EXPECT_EQ(call.signature(), "ass");
    EXPECT_EQ(call.arguments().at(0).toStringList(),
              QStringList{"file:///tmp/%C3%A4%20b/100%25.gpl"});

    service_.answer.reset();
    browser.reveal("/tmp/c");
    EXPECT_TRUE(waitFor([&] { return opened.size() == 2; })) << "the file manager refused";
}

TEST_F(Bus, NotificationsReplaceEachOtherAndOfferTheirAction) {
    constexpr const char* kPath = "/org/freedesktop/Notifications";
    constexpr const char* kName = "org.freedesktop.Notifications";
    serve(kName, kPath);
    service_.answer = {7U};
    int undone = 0;
    DesktopNotifications notifications(program_);
    notifications.show("first", 1.4, ToastAction{"Undo", [&] { ++undone; }}, {});
    EXPECT_TRUE(waitFor([&] { return service_.calls.size() == 1; }));
    EXPECT_EQ(service_.calls[0].signature(), "susssasa{sv}i");
    const auto notice = service_.calls[0].arguments();
    EXPECT_EQ(notice.at(3).toString(), "first");
    EXPECT_EQ(notice.at(7).toInt(), 1400);
    const auto actions = notice.at(5).toStringList();
    ASSERT_EQ(actions.size(), 2);
    EXPECT_EQ(actions.at(1), "Undo");
    for (const uint id : {8U, 7U, 7U}) // another program's; ours; ours, once more
        desktop_.send(QDBusMessage::createSignal(kPath, kName, "ActionInvoked")
                      << id << actions.at(0));
    EXPECT_TRUE(waitFor([&] { return undone > 0; }));
    notifications.show("second", 2.8, {}, {});
    EXPECT_TRUE(waitFor([&] { return service_.calls.size() == 2; }));
    EXPECT_EQ(service_.calls[1].arguments().at(1).toUInt(), 7U) << "does not replace the first";
    EXPECT_EQ(undone, 1);
}

} // namespace
} // namespace tintra
