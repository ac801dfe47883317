#pragma once

#include <QDBusConnection>
#include <QString>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tintra {

/// What a launcher says along with a request, so that the window that answers it may come up in
/// front of others. Either may be empty.
struct Activation {
    QString startupId; ///< of X11
    QString token;     ///< of Wayland (xdg-activation)

    /// What this process was started with. Before the application object is made, which takes it
    /// away.
    static Activation ofEnvironment();
};

/// What a running application is asked by launchers and by later processes of its own.
struct ApplicationRequests {
    std::function<void(const Activation&)> activate;
    std::function<void(const std::vector<std::filesystem::path>& files, const Activation&)> open;
    /// Answers whether there is such an action.
    std::function<bool(std::string_view action, const Activation&)> perform;
};

/// The application under its name on the session bus (org.freedesktop.Application): the first
/// process takes the name, every later one hands its wish over and leaves. Main loop.
class ApplicationService final {
public:
    /// `name`: the identifier of the application, "org.tintra.Tintra".
    explicit ApplicationService(QString name, QDBusConnection bus = QDBusConnection::sessionBus());
    ~ApplicationService();
    ApplicationService(const ApplicationService&) = delete;
    ApplicationService& operator=(const ApplicationService&) = delete;

    /// What a process was started for; without any, to be shown.
    struct Wish {
        std::vector<std::filesystem::path> files; ///< absolute names
        std::string action;                       ///< after the files; empty for none
    };
    enum class Standing {
        running,    ///< this process is the application, on its bus or without any
        handedOver, ///< another process is, and has taken the wish
        unanswered, ///< another process is, and does not answer
    };
    /// Takes the name, or hands the wish to the process that has it. Waits for that process ten
    /// seconds a request at most.
    Standing claim(const Wish& wish, const Activation& activation);

    /// Answers requests from now on; those that came since `claim` too, when the loop runs.
    void serve(ApplicationRequests requests);

private:
    class Object;

    bool handOver(const Wish& wish, const Activation& activation);

    QString name_;
    QDBusConnection bus_;
    std::unique_ptr<Object> object_;
};

} // namespace tintra
