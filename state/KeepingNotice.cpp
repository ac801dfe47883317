#include "state/KeepingNotice.h"

#include "platform/DefaultsStore.h"
#include "platform/Services.h"
#include "platform/Toasts.h"
#include "state/NoticeTexts.h"
#include "state/Workspaces.h"

namespace tintra {

KeepingNotice::KeepingNotice(Services& services, const Workspaces& workspaces)
    : services_(services), workspaces_(workspaces) {
    services_.defaults.whenFailing([this](std::string_view key, const FileError& error) {
        failed(std::string(key), error.why);
    });
}

KeepingNotice::~KeepingNotice() {
    services_.defaults.whenFailing({});
}

void KeepingNotice::failed(const std::string& key, const std::string& why) {
    const bool isKnown = !failing_.empty();
    failing_.insert(key);
    if (isKnown) return;
    const auto* front = workspaces_.front();
    services_.toasts.show("Your work could not be kept: " + why, kForExplaining, {},
                          front != nullptr ? front->place() : ToastPlace{});
}

} // namespace tintra
