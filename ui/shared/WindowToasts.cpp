#include "ui/shared/WindowToasts.h"

#include "ui/shared/NoticeBar.h"
#include "ui/shared/Text.h"

namespace tintra {

WindowToasts::WindowToasts(NoticeHistory& history, Toasts& elsewhere)
    : history_(history), elsewhere_(elsewhere) {}

void WindowToasts::show(std::string text, double seconds, std::optional<ToastAction> action,
                        ToastPlace window) {
    const auto words = shown(text);
    history_.add(words);
    auto* bar = barOf ? barOf(window) : nullptr;
    if (bar)
        bar->present(words, seconds, std::move(action));
    else
        elsewhere_.show(toUtf8(words), seconds, std::move(action), window);
}

} // namespace tintra
