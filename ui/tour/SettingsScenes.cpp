// The settings, a picture a tab, put together.

#include "state/Preferences.h"
#include "ui/settings/SettingsWindow.h"
#include "ui/tour/Scenes.h"
#include "ui/tour/Sheet.h"

#include <array>
#include <filesystem>

namespace tintra::tour {
namespace {

void addFolders(Stage& stage) {
    for (const auto* name : {"Studio", "Client Work", "Archive"}) {
        const auto path = stage.folder() / "Palettes" / name;
        std::filesystem::create_directories(path);
        stage.state().addPaletteLocation(path);
        stage.settle();
    }
    std::filesystem::remove(stage.folder() / "Palettes" / "Archive");
    stage.ui().models.rescanPalettes();
    stage.settle();
}

QImage settings(Stage& stage) {
    addFolders(stage);
    stage.app().openSettings();
    stage.preferences().hotKeyUnavailable = true;
    std::vector<QImage> tabs;
    for (const auto tab : allChoices<SettingsTab>()) {
        stage.preferences().settingsTab = tab;
        stage.settle();
        tabs.push_back(stage.grab(stage.open<SettingsWindow>()));
    }
    return sheet(tabs, 3);
}

constexpr std::array kScenes{Scene{"settings", kBoth, settings}};

} // namespace

std::span<const Scene> settingsScenes() {
    return kScenes;
}

} // namespace tintra::tour
