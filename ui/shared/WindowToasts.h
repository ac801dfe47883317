#pragma once

#include "platform/Toasts.h"

#include <functional>

namespace tintra {

class NoticeBar;
class NoticeHistory;

/// Shows each notice in the bar of its window, or through `elsewhere` while that window is not
/// open, and keeps it in the history.
class WindowToasts final : public Toasts {
public:
    WindowToasts(NoticeHistory& history, Toasts& elsewhere);

    /// Answers the bar of a window; none while it is closed. Set before the first notice.
    std::function<NoticeBar*(const ToastPlace&)> barOf;

    void show(std::string text, double seconds, std::optional<ToastAction> action,
              ToastPlace window) override;

private:
    NoticeHistory& history_;
    Toasts& elsewhere_;
};

} // namespace tintra
