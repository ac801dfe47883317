#include "ui/palette/PaletteToolBar.h"

#include "state/AppState.h"
#include "state/Models.h"
#include "ui/actions/FormatMenus.h"
#include "ui/shared/Controls.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QMenu>

namespace tintra {

PaletteToolBar::PaletteToolBar(Ui& ui, AppState& state, ContextOf context, QWidget* parent)
    : ToolLine(ui, context, parent), ui_(ui), state_(state),
      mode_(new PopUpButton(ui.theme, PopUpButton::Border::yes, this)),
      display_(new Segmented(ui.theme, {{worded("Columns"), "columns"}, {worded("Tiles"), "tiles"}},
                             this)) {
    mode_->fill = [&state](QMenu& menu) { fillModeMenu(menu, state); };
    display_->setAccessibleName(worded("Shown as"));
    display_->chosen = [context](int choice) {
        perform(choice == 0 ? ActionId::columns : ActionId::tiles, context());
    };
    addLeft(mode_);
    addLeft(display_);
    addTool(ActionId::addBlankSwatch, "add");
    auto& paste = addTool(ActionId::typeOrPaste, "paste");
    // While the pane is open its button shuts it.
    auto& picture = addSwitch(ActionId::openPicture, ActionId::picturePane, "picture");
    bench_ = &addTool(ActionId::openBench, "bench", true);
    contrast_ = &addTool(ActionId::openContrast, "contrast");
    auto& library = addTool(ActionId::openLibrary, "library");
    auto& saveAs = addTool(ActionId::saveAs, "export", true);
    editor_ = &addTool(ActionId::colourEditor, "editor");
    // The display is chosen by key and menu too; the editor's button stays longest.
    leaving_ = {&library, contrast_, bench_, &picture, &paste, &saveAs, display_, editor_};
    subscribe();
    syncAll();
}

void PaletteToolBar::subscribe() {
    const auto again = [this] { syncAll(); };
    subscriptions_.add(state_.mode, again);
    subscriptions_.add(state_.customPaletteVersion(), again);
    subscriptions_.add(state_.editorBuffer, [this] {
        // Every step of a slider comes here.
        if (editor_->isChecked() != state_.editorBuffer.value().has_value()) syncAll();
    });
    subscriptions_.add(state_.isPictureWindowOpen, again);
    subscriptions_.add(state_.attachment(), again);
    subscriptions_.add(ui_.models.preferences().paletteViews, again);
    subscriptions_.add(ui_.models.bench().content(), again);
    subscriptions_.add(ui_.models.contrast().content(), again);
    subscriptions_.add(ui_.theme.version(), again);
}

void PaletteToolBar::syncAll() {
    mode_->setText(shown(title(state_.mode.value())));
    mode_->setAccessibleName(worded("Mode: %1").arg(mode_->text()));
    const auto& views = ui_.models.preferences().paletteViews.value();
    const auto view = views.find(state_.displayKey());
    const bool tiles = view != views.end() && view->second == PaletteDisplay::tiles;
    display_->setCurrent(tiles ? 1 : 0);
    bench_->setBadge(static_cast<int>(ui_.models.bench().benchColumns().size()));
    contrast_->setBadge(static_cast<int>(ui_.models.contrast().entries().size()));
    const bool isBuilder = state_.mode.value() == HarmonyMode::paletteBuilder;
    display_->setVisible(isBuilder);
    // In a harmony the seeds have the line.
    setParted(isBuilder);
    auto leaving = leaving_;
    if (!isBuilder) std::erase(leaving, display_);
    setLeaving(std::move(leaving));
    sync();
}

} // namespace tintra
