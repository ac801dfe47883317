#include "ui/program/DesktopServices.h"

#include "platform/Locations.h"
#include "platform/ThreadPool.h"
#include "ui/shared/PortalSettings.h"

#include <algorithm>
#include <thread>
#include <utility>

namespace tintra {
namespace {

/// Enough to read files and a picture side by side, without taking the machine.
unsigned threads() {
    return std::clamp(std::thread::hardware_concurrency(), 1U, 4U);
}

} // namespace

Surroundings Surroundings::ofThisDesktop() {
    return {std::make_unique<SystemChance>(), std::make_unique<ThreadPool>(threads()),
            std::make_unique<PortalSettings>()};
}

DesktopServices::DesktopServices(Surroundings surroundings, Toasts& toasts, Dialogues& dialogues)
    : chance_(std::move(surroundings.chance)),
      defaults_({.settings = configFolder(), .state = stateFolder()}, mainLoop_, clock_),
      trash_(clock_), background_(std::move(surroundings.background)),
      services_{clock_,       *chance_,     mainLoop_,  *background_, defaults_, clipboard_, trash_,
                fileBrowser_, folderWatch_, scripting_, toasts,       dialogues, log_} {}

} // namespace tintra
