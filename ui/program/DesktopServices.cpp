#include "ui/program/DesktopServices.h"

#include "platform/Locations.h"

#include <algorithm>
#include <thread>

namespace tintra {
namespace {

/// Enough to read files and a picture side by side, without taking the machine.
unsigned threads() {
    return std::clamp(std::thread::hardware_concurrency(), 1U, 4U);
}

} // namespace

DesktopServices::DesktopServices(Toasts& toasts, Dialogues& dialogues)
    : defaults_({.settings = configFolder(), .state = stateFolder()}, mainLoop_, clock_),
      trash_(clock_),
      background_(threads()), services_{clock_,       chance_,    mainLoop_, background_,
                                        defaults_,    clipboard_, trash_,    fileBrowser_,
                                        folderWatch_, scripting_, toasts,    dialogues,
                                        log_} {}

} // namespace tintra
