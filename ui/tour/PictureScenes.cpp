// The picture pane.

#include "state/AppState.h"
#include "state/Preferences.h"
#include "ui/palette/PaletteWindow.h"
#include "ui/tour/Scenes.h"
#include "ui/tour/Sheet.h"

#include <QDir>
#include <array>
#include <fstream>

namespace tintra::tour {
namespace {

QImage pane(Stage& stage) {
    stage.window().resize(960, 608);
    const auto file = stage.folder() / "Evening Ferry.png";
    std::ofstream(file, std::ios::binary) << eveningFerry();
    auto& state = stage.state();
    stage.preferences().pictureShare = PictureShare::twoThirds;
    state.loadImage(file);
    stage.settle();
    state.reextract(6, ImagePalette::Emphasis::vibrant);
    stage.settle();
    state.applyExtraction();
    stage.settle();
    state.addPin({150, 480});
    stage.settle();
    stage.window().notices().dismiss();
    state.selectedSwatch = 2;
    return stage.grab(stage.window());
}

QImage emptyPane(Stage& stage) {
    stage.window().resize(560, 348);
    stage.perform(ActionId::picturePane);
    stage.window().resize(560, 348);
    return stage.grab(stage.window());
}

constexpr std::array kScenes{
    Scene{"picture-pane", kBoth, pane},
    Scene{"picture-pane-empty", kBoth, emptyPane},
};

} // namespace

std::span<const Scene> pictureScenes() {
    return kScenes;
}

} // namespace tintra::tour
