#include "tests/TemporaryFolder.h"
#include "tests/services/RunningLoop.h"
#include "tests/support/PrivateBus.h"

#include <gtest/gtest.h>

#include <QDBusConnectionInterface>
#include <QDBusServiceWatcher>
#include <QFileSystemWatcher>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <csignal>
#include <memory>
#include <string>
#include <vector>

namespace tintra {
namespace {

namespace fs = std::filesystem;

constexpr auto kName = "org.tintra.Tintra", kPath = "/org/tintra/Tintra",
               kInterface = "org.freedesktop.Application";
constexpr auto kGpl = "GIMP Palette\n#\n44 24 66 Night\n226 149 120 Dusk\n";

/// The application in processes of its own, over a home and a bus of the test's.
class Processes : public testing::Test {
protected:
    Processes() {
        fs::create_directories(home_ / "state/tintra");
        fs::create_directories(home_ / "config/tintra");
        fs::create_directories(home_ / "run");
        folder_.addPath(QString::fromStdString((home_ / "state/tintra").string()));
        environment_.insert("HOME", home_.path().c_str());
        for (const auto& [variable, name] : {std::pair{"XDG_CONFIG_HOME", "config"},
                                             {"XDG_STATE_HOME", "state"},
                                             {"XDG_DATA_HOME", "data"},
                                             {"XDG_RUNTIME_DIR", "run"}})
            environment_.insert(variable, (home_ / name).c_str());
        environment_.insert("DBUS_SESSION_BUS_ADDRESS", bus_.address());
        environment_.insert("QT_QPA_PLATFORM", "offscreen");
    }

    std::unique_ptr<QProcess> run(const QStringList& arguments) {
        auto process = std::make_unique<QProcess>();
        process->setProcessEnvironment(environment_);
        process->setWorkingDirectory(QString::fromStdString(home_.path().string()));
        process->start(TINTRA_DESKTOP_PROGRAM, arguments);
        return process;
    }
    /// The one that takes the name, when it is ready.
    std::unique_ptr<QProcess> runFirst(const QStringList& arguments = {}) {
        auto process = run(arguments);
        EXPECT_TRUE(waitFor([&] { return connection_.interface()->isServiceRegistered(kName); }))
            << process->readAllStandardError().toStdString();
        // It answers when its windows are there.
        connection_.call(QDBusMessage::createMethodCall(kName, kPath, kInterface, "Activate")
                         << QVariantMap());
        return process;
    }
    static int statusOf(QProcess& process) {
        EXPECT_TRUE(waitFor([&] { return process.state() == QProcess::NotRunning; }));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return process.exitCode();
    }
    static int statusAfter(int signal, QProcess& process) {
        ::kill(static_cast<pid_t>(process.processId()), signal);
        return statusOf(process);
    }
    std::string palette(const char* name) { return home_.write(name, kGpl).string(); }

    /// The files of the windows that the records hold, the primary one's first; "" for none.
    std::vector<std::string> kept() const {
        std::vector<std::string> files;
        const auto add = [&files](const QJsonValue& window) {
            files.push_back(window["currentPalettePath"].toString().toStdString());
        };
        const auto read = [this](const char* key) {
            const auto text = home_.content(std::string("state/tintra/") + key + ".json");
            return QJsonDocument::fromJson(QByteArray::fromStdString(text));
        };
        add(read("TintraWorkspace").object());
        for (const auto& window : read("TintraExtraWorkspaces").array())
            add(window);
        return files;
    }
    bool keeps(const std::vector<std::string>& files) {
        const bool found = waitFor([&] { return kept() == files; });
        EXPECT_EQ(kept(), files);
        return found;
    }

    const TemporaryFolder home_;
    PrivateBus bus_;
    QDBusConnection connection_ = bus_.connection("test");
    QDBusServiceWatcher watcher_{kName, connection_}; // wakes the loop when the name changes hands
    QFileSystemWatcher folder_;                       // the same when a record is written
    QProcessEnvironment environment_ = QProcessEnvironment::systemEnvironment();
};

TEST_F(Processes, FilesGoToTheOneThatRuns) {
    const auto first = palette("first.gpl"), second = palette("second.gpl"),
               third = palette("third.gpl");
    const auto running = runFirst({"first.gpl"});
    ASSERT_TRUE(keeps({first}));
    EXPECT_EQ(statusOf(*run({"second.gpl"})), 0);
    ASSERT_TRUE(keeps({first, second}));
    // One that is open already, none at all and no palette open no window.
    home_.write("broken.gpl", "GIMP Palette\n");
    home_.write("broken.png", "x");
    EXPECT_EQ(statusOf(*run({"first.gpl", "missing.gpl", "broken.gpl", "broken.png", "missing",
                             QString::fromStdString("file://" + third)})),
              0);
    ASSERT_TRUE(keeps({first, second, third}));
    EXPECT_EQ(statusOf(*run({})), 0);
    EXPECT_EQ(statusOf(*run({"--new-palette"})), 0);
    EXPECT_EQ(statusAfter(SIGTERM, *running), 0);
    EXPECT_EQ(kept(), (std::vector<std::string>{first, second, third, ""}));
}

TEST_F(Processes, ManyFilesAtOnceOpenManyWindowsAndNoMore) {
    QStringList names;
    std::vector<std::string> expected;
    for (int i = 0; i < 30; ++i) {
        const auto name = "p" + std::to_string(i) + ".gpl";
        names << QString::fromStdString(name);
        if (expected.size() < 24) expected.push_back(palette(name.c_str()));
    }
    const auto running = runFirst(names);
    ASSERT_TRUE(keeps(expected));
    EXPECT_EQ(statusAfter(SIGTERM, *running), 0);
    EXPECT_EQ(kept(), expected);
}

TEST_F(Processes, EveryEndKeepsTheWorkAndTheNextStartBringsItBack) {
    const auto first = palette("first.gpl"), other = palette("other.gpl");
    auto running = runFirst({"first.gpl"});
    ASSERT_TRUE(keeps({first}));
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        EXPECT_EQ(statusAfter(signal, *running), 0) << signal;
        EXPECT_EQ(kept(), std::vector<std::string>{first}) << signal;
        running = runFirst();
    }
    // What came back is in the way of the next file; after a clean start nothing is.
    EXPECT_EQ(statusOf(*run({"other.gpl"})), 0);
    EXPECT_TRUE(keeps({first, other}));
    EXPECT_EQ(statusAfter(SIGTERM, *running), 0);
    home_.write("config/tintra/TintraPreferences.json", R"({"opensWith":"clean"})");
    running = runFirst();
    EXPECT_EQ(statusAfter(SIGTERM, *running), 0);
    EXPECT_EQ(kept(), (std::vector<std::string>{first, other})) << "nothing was made";
    running = runFirst({"other.gpl"});
    EXPECT_TRUE(waitFor([&] { return kept().front() == other; }));
    EXPECT_EQ(statusAfter(SIGTERM, *running), 0);
    EXPECT_EQ(kept(), std::vector<std::string>{other});
}

TEST_F(Processes, WithoutABusItRunsAlone) {
    environment_.insert("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    const auto first = palette("first.gpl");
    const auto running = run({"first.gpl"});
    ASSERT_TRUE(keeps({first}));
    EXPECT_EQ(statusAfter(SIGTERM, *running), 0);
}

TEST_F(Processes, WrongCallsAreAnsweredInASentence) {
    const struct {
        QStringList arguments;
        const char* platform;
        int status;
        const char *output, *error; ///< what they hold
    } rows[] = {
        {{"--bogus"}, "offscreen", 2, "", "there is no option “--bogus”"},
        {{"-x", "a.gpl"}, "offscreen", 2, "", "there is no option “-x”"},
        {{"--help"}, "xcb", 0, "--new-palette", ""},
        {{"a.gpl", "-v"}, "xcb", 0, "tintra-desktop ", ""},
        {{}, "xcb", 1, "", "no display"},
    };
    environment_.remove("DISPLAY");
    for (const auto& row : rows) {
        environment_.insert("QT_QPA_PLATFORM", row.platform);
        const auto process = run(row.arguments);
        const auto what = row.arguments.join(' ').toStdString();
        EXPECT_EQ(statusOf(*process), row.status) << what;
        const auto output = process->readAllStandardOutput(),
                   error = process->readAllStandardError();
        EXPECT_TRUE(output.contains(row.output)) << what << output.toStdString();
        EXPECT_TRUE(error.contains(row.error)) << what << error.toStdString();
        EXPECT_EQ(error.isEmpty(), row.status == 0) << error.toStdString();
    }
}

} // namespace
} // namespace tintra
