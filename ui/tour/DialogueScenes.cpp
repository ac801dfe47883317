// Questions, and notices.

#include "platform/Services.h"
#include "state/AppState.h"
#include "ui/palette/PaletteWindow.h"
#include "ui/shared/DialogueBox.h"
#include "ui/shared/NoticeBar.h"
#include "ui/tour/Scenes.h"
#include "ui/tour/Sheet.h"

#include <array>

namespace tintra::tour {
namespace {

QImage asked(Stage& stage) {
    stage.settle();
    auto& box = stage.open<DialogueBox>();
    auto picture = stage.grab(box);
    box.reject();
    stage.settle();
    return picture;
}

QImage dialogues(Stage& stage) {
    stage.fill(harbourLight(), {860, 568});
    auto& state = stage.state();
    auto& dialogues = stage.ui().services.dialogues;
    std::vector<QImage> pictures;
    state.renameSwatch(0, "Ink");
    state.startNewPalette();
    pictures.push_back(asked(stage));
    dialogues.ask({"“Harbour Light” was saved from another window after this one loaded it.",
                   "Save As… keeps both palettes. Replace overwrites what that window saved.",
                   {"Save As…", "Replace", "Cancel"},
                   state.place()},
                  [](std::size_t) {});
    pictures.push_back(asked(stage));
    dialogues.ask({"Add the colours of Evening Ferry.png to this palette?",
                   "There are already 12 colours here. They can stay, with the ones from this "
                   "picture after them.",
                   {"Add to Palette", "Replace", "Cancel"},
                   state.place()},
                  [](std::size_t) {});
    pictures.push_back(asked(stage));
    state.duplicatePalette();
    pictures.push_back(asked(stage));
    return sheet(pictures, 2);
}

QImage notices(Stage& stage) {
    stage.fill(harbourLight(8), {860, 388});
    auto& state = stage.state();
    state.selectedSwatch = 2;
    state.removeSwatch(7);
    stage.perform(ActionId::undo);
    const auto undone = stage.grab(stage.window());
    state.addToPalette(colour("3e7cb1"), AppState::Duplicates::refuse);
    return sheet({undone, stage.grab(stage.window())}, 1);
}

constexpr std::array kScenes{
    Scene{"dialogues", kBoth, dialogues},
    Scene{"notices", kBoth, notices},
};

} // namespace

std::span<const Scene> dialogueScenes() {
    return kScenes;
}

} // namespace tintra::tour
