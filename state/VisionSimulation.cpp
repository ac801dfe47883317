#include "state/VisionSimulation.h"

#include "state/Bench.h"
#include "state/ContrastBoard.h"
#include "state/Workspaces.h"

namespace tintra {

std::string_view FrontCapabilities::clearTitle() const {
    if (!clears) return "Clear This Window";
    switch (*clears) {
    case Clears::palette:
        return "Clear Palette";
    case Clears::seeds:
        return "Clear Seeds";
    case Clears::bench:
        return "Clear Bench";
    case Clears::contrast:
        return "Clear Contrast";
    }
    return {};
}

VisionSimulation::VisionSimulation(Workspaces& workspaces, Bench& bench, ContrastBoard& contrast)
    : workspaces_(workspaces), bench_(bench), contrast_(contrast) {}

QProperty<Vision>* VisionSimulation::visionOfFront() const {
    switch (front.value().window) {
    case ToastWindow::palette: {
        auto* state = workspaces_.state(front.value().palette);
        return state != nullptr ? &state->vision : nullptr;
    }
    case ToastWindow::bench:
        return &bench_.vision;
    case ToastWindow::contrast:
        return &contrast_.vision;
    case ToastWindow::library:
    case ToastWindow::settings:
    case ToastWindow::none:
        break;
    }
    return nullptr;
}

std::optional<Vision> VisionSimulation::frontVision() const {
    const auto* vision = visionOfFront();
    return vision != nullptr ? std::optional(vision->value()) : std::nullopt;
}

void VisionSimulation::setFront(Vision vision) {
    if (auto* property = visionOfFront()) *property = vision;
}

FrontCapabilities VisionSimulation::capabilities() const {
    using Clears = FrontCapabilities::Clears;
    FrontCapabilities offered;
    offered.hasVision = visionOfFront() != nullptr;
    offered.isLibrary = front.value().window == ToastWindow::library;
    switch (front.value().window) {
    case ToastWindow::palette:
        if (const auto* state = workspaces_.state(front.value().palette))
            offered.clears = state->mode.value() == HarmonyMode::paletteBuilder ? Clears::palette
                                                                                : Clears::seeds;
        break;
    case ToastWindow::bench:
        offered.clears = Clears::bench;
        break;
    case ToastWindow::contrast:
        offered.clears = Clears::contrast;
        break;
    case ToastWindow::library:
    case ToastWindow::settings:
    case ToastWindow::none:
        break;
    }
    return offered;
}

} // namespace tintra
