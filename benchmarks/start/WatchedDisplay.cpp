#include "benchmarks/start/WatchedDisplay.h"

#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>

namespace tintra::bench {
namespace {

constexpr std::uint32_t kRoot = 0xFF00FF;
constexpr auto kPatience = std::chrono::seconds(10);

template <class Reply>
auto held(Reply* reply) {
    return std::unique_ptr<Reply, decltype(&std::free)>(reply, &std::free);
}

/// Starts a server on a display that is free; answers its number as the server tells it.
std::string startServer(pid_t& server) {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) return {};
    const auto number = std::to_string(ends[1]);
    const std::array<const char*, 8> arguments{"Xvfb", "-displayfd",   number.c_str(), "-screen",
                                               "0",    "1920x1200x24", "-noreset",     nullptr};
    const int failed = posix_spawnp(&server, "Xvfb", nullptr, nullptr,
                                    const_cast<char* const*>(arguments.data()), environ);
    close(ends[1]);
    std::string told;
    std::array<char, 16> piece{};
    while (failed == 0 && told.find('\n') == std::string::npos) {
        const auto count = read(ends[0], piece.data(), piece.size());
        if (count <= 0) break;
        told.append(piece.data(), static_cast<std::size_t>(count));
    }
    close(ends[0]);
    if (failed != 0) server = 0;
    return told.substr(0, told.find('\n'));
}

} // namespace

WatchedDisplay::WatchedDisplay() {
    const auto number = startServer(server_);
    if (number.empty()) return;
    name_ = ":" + number;
    connection_.reset(xcb_connect(name_.c_str(), nullptr));
    if (!isThere()) return;
    auto* connection = connection_.get();
    root_ = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const std::array<std::uint32_t, 2> values{kRoot, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY};
    xcb_change_window_attributes(connection, root_, XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK,
                                 values.data());
    xcb_clear_area(connection, 0, root_, 0, 0, 0, 0);
    xcb_flush(connection);
}

WatchedDisplay::~WatchedDisplay() {
    connection_.reset();
    if (server_ == 0) return;
    kill(server_, SIGTERM);
    waitpid(server_, nullptr, 0);
}

std::optional<xcb_window_t> WatchedDisplay::mapped(Clock::time_point until) {
    pollfd waits{xcb_get_file_descriptor(connection_.get()), POLLIN, 0};
    while (Clock::now() < until) {
        const auto event = held(xcb_poll_for_event(connection_.get()));
        if (!event) {
            poll(&waits, 1, 100);
            continue;
        }
        if ((event->response_type & 0x7F) != XCB_MAP_NOTIFY) continue;
        return reinterpret_cast<const xcb_map_notify_event_t*>(event.get())->window;
    }
    return std::nullopt;
}

bool WatchedDisplay::isPainted(xcb_window_t window) {
    auto* connection = connection_.get();
    const auto place =
        held(xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
    if (!place) return false;
    const auto x = static_cast<std::int16_t>(place->width / 2);
    const auto y = static_cast<std::int16_t>(place->height / 2);
    const auto image = held(xcb_get_image_reply(
        connection,
        xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window, x, y, 1, 1, 0xFFFFFF),
        nullptr));
    if (!image) return false;
    const auto* pixel = xcb_get_image_data(image.get());
    const auto color = static_cast<std::uint32_t>(pixel[0] | pixel[1] << 8 | pixel[2] << 16);
    return color != kRoot && color != 0;
}

std::optional<WatchedDisplay::Shown> WatchedDisplay::nextWindow() {
    const auto until = Clock::now() + kPatience;
    const auto window = mapped(until);
    if (!window) return std::nullopt;
    Shown shown{Clock::now(), {}};
    while (!isPainted(*window))
        if (Clock::now() > until) return std::nullopt;
    shown.painted = Clock::now();
    return shown;
}

} // namespace tintra::bench
