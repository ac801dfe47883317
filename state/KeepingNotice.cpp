#include "state/KeepingNotice.h"

#include "platform/DefaultsStore.h"
#include "platform/Services.h"
#include "platform/Toasts.h"
#include "state/NoticeTexts.h"
#include "state/Workspaces.h"

#include <utility>

namespace tintra {

KeepingNotice::KeepingNotice(Services& services, const Workspaces& workspaces)
    : services_(services), workspaces_(workspaces) {
    services_.defaults.whenFailing(
        [this](std::string_view, const FileError& error) { failed(error.why); });
    services_.defaults.whenRecovered([this] { isSaid_ = false; });
}

KeepingNotice::~KeepingNotice() {
    services_.defaults.whenFailing({});
    services_.defaults.whenRecovered({});
}

void KeepingNotice::failed(const std::string& why) {
    if (std::exchange(isSaid_, true)) return;
    const auto* front = workspaces_.front();
    services_.toasts.show("Your work could not be kept: " + why, kForExplaining, {},
                          front != nullptr ? front->place() : ToastPlace{});
}

} // namespace tintra
