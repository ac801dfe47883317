#include "platform/desktop/services/ApplicationService.h"

#include "platform/desktop/services/EndingSignals.h"
#include "tests/services/RunningLoop.h"
#include "tests/support/PrivateBus.h"

#include <gtest/gtest.h>

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <atomic>
#include <csignal>
#include <optional>
#include <string>
#include <thread>

namespace tintra {
namespace {

using Standing = ApplicationService::Standing;
using Files = std::vector<std::filesystem::path>;

constexpr auto kName = "org.example.Some-App";
constexpr auto kPath = "/org/example/Some_App";
constexpr auto kInterface = "org.freedesktop.Application";

class OneApplication : public testing::Test {
protected:
    /// What a later process, which the main loop does not wait for, makes of these.
    Standing later(const ApplicationService::Wish& wish, const Activation& activation) {
        std::atomic<bool> done = false;
        Standing standing{};
        std::jthread other([&] {
            ApplicationService service(kName, second_);
            standing = service.claim(wish, activation);
            done = true;
            QMetaObject::invokeMethod(qApp, [] {}); // wakes the loop
        });
        EXPECT_TRUE(waitFor([&] { return done.load(); }));
        return standing;
    }
    ApplicationRequests noting() {
        const auto by = [](const Activation& activation) {
            return " by " + activation.startupId.toStdString() + "," +
                   activation.token.toStdString();
        };
        return {
            .activate = [this, by](const Activation& a) { asked_.push_back("activate" + by(a)); },
            .open =
                [this, by](const Files& files, const Activation& a) {
                    std::string names;
                    for (const auto& file : files)
                        names += " " + file.string();
                    asked_.push_back("open" + names + by(a));
                },
            .perform =
                [this](std::string_view action, const Activation&) {
                    asked_.emplace_back(action);
                    return action == "known";
                },
        };
    }

    PrivateBus bus_;
    QDBusConnection first_ = bus_.connection("first"), second_ = bus_.connection("second");
    std::vector<std::string> asked_;
};

TEST_F(OneApplication, ALaterProcessHandsOverAndANewOneFollowsTheOld) {
    std::optional<ApplicationService> service(std::in_place, kName, first_);
    ASSERT_EQ(service->claim({{"/own"}, {}}, {}), Standing::running);
    service->serve(noting());
    EXPECT_EQ(later({{"/tmp/ä b/100%.gpl", "/tmp/#1?.png"}, {}}, {"id_TIME7", ""}),
              Standing::handedOver);
    EXPECT_EQ(later({}, {"", "token"}), Standing::handedOver);
    EXPECT_EQ(later({{}, "known"}, {}), Standing::handedOver);
    EXPECT_EQ(asked_, (std::vector<std::string>{"open /tmp/ä b/100%.gpl /tmp/#1?.png by id_TIME7,",
                                                "activate by ,token", "known"}));
    service.reset();
    EXPECT_EQ(later({{"/next"}, {}}, {}), Standing::running);
    EXPECT_EQ(asked_.size(), 3U);
}

TEST_F(OneApplication, RequestsOfLaunchersAreAnswered) {
    ApplicationService service(kName, first_);
    ASSERT_EQ(service.claim({}, {}), Standing::running);
    service.serve(noting());
    const QVariantMap data;
    const struct {
        const char* member;
        QVariantList arguments;
        const char* error; ///< empty for an answer
        std::vector<std::string> asked;
    } rows[] = {
        {"ActivateAction", {"known", QVariantList(), data}, "", {"known"}},
        {"ActivateAction",
         {"none", QVariantList(), data},
         "org.freedesktop.DBus.Error.InvalidArgs",
         {"none"}},
        {"Open",
         {QStringList{"file:///a%20b.gpl", "sftp://far/c.gpl"}, data},
         "",
         {"open /a b.gpl sftp://far/c.gpl by ,"}},
        {"Open", {"file:///a.gpl", data}, "org.freedesktop.DBus.Error.UnknownMethod", {}},
        {"Activate", {}, "org.freedesktop.DBus.Error.UnknownMethod", {}},
        {"Quit", {data}, "org.freedesktop.DBus.Error.UnknownMethod", {}},
    };
    for (const auto& row : rows) {
        asked_.clear();
        auto call = QDBusMessage::createMethodCall(kName, kPath, kInterface, row.member);
        call.setArguments(row.arguments);
        const QDBusPendingCallWatcher pending(second_.asyncCall(call)); // wakes the loop
        EXPECT_TRUE(waitFor([&] { return pending.isFinished(); }));
        EXPECT_EQ(pending.error().name(), QString(row.error)) << row.member;
        EXPECT_EQ(asked_, row.asked) << row.member;
    }
}

TEST_F(OneApplication, WhoGetsNoAnswerIsNotASecondApplication) {
    // Another program with the name: it knows none of the calls.
    ASSERT_TRUE(first_.registerService(kName));
    EXPECT_EQ(later({{"/a"}, {}}, {}), Standing::unanswered);
}

TEST(EndingSignals, AreToldOnTheLoopUnlessTheProcessWasToIgnoreThem) {
    for (const int signal : {SIGTERM, SIGINT})
        std::signal(signal, SIG_DFL);
    std::signal(SIGHUP, SIG_IGN);
    int told = 0;
    const EndingSignals ending([&told] { ++told; });
    std::raise(SIGHUP);
    QCoreApplication::processEvents();
    EXPECT_EQ(told, 0);
    for (const int signal : {SIGTERM, SIGINT}) {
        const int before = told;
        std::raise(signal);
        EXPECT_EQ(told, before) << "told within the signal";
        EXPECT_TRUE(waitFor([&] { return told == before + 1; })) << signal;
    }
}

} // namespace
} // namespace tintra
