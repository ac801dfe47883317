#pragma once

#include <sys/types.h>
#include <xcb/xcb.h>

#include <chrono>
#include <memory>
#include <optional>
#include <string>

namespace tintra::bench {

/// An X server of its own without a window manager, whose root window has a colour that no program
/// paints: what shows it has been mapped but not painted.
class WatchedDisplay {
public:
    using Clock = std::chrono::steady_clock;

    WatchedDisplay();
    ~WatchedDisplay();
    WatchedDisplay(const WatchedDisplay&) = delete;
    WatchedDisplay& operator=(const WatchedDisplay&) = delete;

    /// The server runs and programs can be started on it.
    bool isThere() const { return connection_ && !xcb_connection_has_error(connection_.get()); }
    /// ":N"
    const std::string& name() const { return name_; }

    struct Shown {
        Clock::time_point mapped, painted;
    };
    /// Waits for the next window that is mapped, and until its middle is painted; nothing when
    /// there is none within ten seconds.
    std::optional<Shown> nextWindow();

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    std::optional<xcb_window_t> mapped(Clock::time_point until);
    bool isPainted(xcb_window_t window);

    pid_t server_ = 0;
    std::string name_;
    std::unique_ptr<xcb_connection_t, Disconnect> connection_;
    xcb_window_t root_ = 0;
};

} // namespace tintra::bench
