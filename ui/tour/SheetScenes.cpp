// What opens over a palette window to take values in or to write them out, and the windows of help.

#include "state/AppState.h"
#include "state/Preferences.h"
#include "ui/exporting/ExportDialogue.h"
#include "ui/help/AboutWindow.h"
#include "ui/help/ShortcutsWindow.h"
#include "ui/palette/PaletteWindow.h"
#include "ui/tour/Scenes.h"
#include "ui/tour/Sheet.h"

#include <array>

namespace tintra::tour {
namespace {

QImage paste(Stage& stage) {
    stage.fill(harbourLight(7), {860, 568});
    stage.state().selectedSwatch = std::nullopt;
    stage.perform(ActionId::typeOrPaste);
    stage.write(QStringLiteral(":root {\n  --harbour: #1f4e79;\n  --slack-tide: #3e7cb1;\n"
                               "  --salt: oklch(0.953 0.007 128);\n  --buoy: rgb(244, 169, 59);\n"
                               "  --signal: var(--warm);\n  --kelp: hsl(128, 22%, 27%);\n}"));
    constexpr int kUntilItIsRead = 250;
    stage.settle(kUntilItIsRead);
    return stage.grab(stage.window());
}

QImage exported(Stage& stage, ExportFormat format) {
    stage.fill(harbourLight(), {860, 568});
    stage.preferences().lastExport = format;
    stage.perform(ActionId::saveAs);
    auto& dialogue = stage.open<ExportDialogue>();
    auto picture = stage.grab(dialogue);
    dialogue.reject();
    stage.settle();
    return picture;
}

QImage asStylesheet(Stage& stage) {
    return exported(stage, ExportFormat::css);
}

/// Every kind of preview.
QImage previews(Stage& stage) {
    return sheet({exported(stage, ExportFormat::svg), exported(stage, ExportFormat::ase),
                  exported(stage, ExportFormat::png), exported(stage, ExportFormat::json)},
                 2);
}

QImage help(Stage& stage) {
    stage.app().openShortcuts();
    stage.app().openAbout();
    stage.settle();
    return sheet({stage.grab(stage.open<ShortcutsWindow>()), stage.grab(stage.open<AboutWindow>())},
                 2);
}

constexpr std::array kScenes{
    Scene{"paste-sheet", kBoth, paste},
    Scene{"export-dialogue", kBoth, asStylesheet},
    Scene{"export-previews", kLight, previews},
    Scene{"shortcuts-about", kBoth, help},
};

} // namespace

std::span<const Scene> sheetScenes() {
    return kScenes;
}

} // namespace tintra::tour
