// Menus, each as it opens, and the menu bar.

#include "state/AppState.h"
#include "state/Models.h"
#include "ui/actions/FormatMenus.h"
#include "ui/actions/Menus.h"
#include "ui/palette/PaletteWindow.h"
#include "ui/tour/Scenes.h"
#include "ui/tour/Sheet.h"

#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <array>

namespace tintra::tour {
namespace {

QImage picture(Stage& stage, const std::function<void(QMenu&)>& fill, int chosen) {
    QMenu menu(&stage.window());
    fill(menu);
    menu.popup({0, 0});
    const auto actions = menu.actions();
    if (chosen >= 0 && chosen < actions.size()) menu.setActiveAction(actions[chosen]);
    auto grabbed = stage.grab(menu);
    menu.close();
    return grabbed;
}

QImage menus(Stage& stage) {
    stage.fill(harbourLight(), {1040, 588});
    stage.state().selectedSwatch = 1;
    const auto context = stage.window().context();
    return sheet(
        {picture(
             stage, [&](QMenu& menu) { fillSwatchMenu(menu, context); }, 0),
         picture(
             stage,
             [&](QMenu& menu) { fillFormatMenu(menu, stage.ui(), true, [](ColorFormat) {}); }, -1),
         picture(
             stage, [&](QMenu& menu) { fillModeMenu(menu, stage.state()); }, 8),
         picture(
             stage,
             [&](QMenu& menu) { fillVisionMenu(menu, stage.state().vision, stage.ui().theme); },
             0)},
        4);
}

QImage everyMenu(Stage& stage) {
    stage.fill(harbourLight(), {1040, 588});
    stage.state().selectedSwatch = 1;
    const auto context = stage.window().context();
    std::vector<QImage> all;
    for (int id = 0; id < static_cast<int>(MenuId::none); ++id)
        if (hasMenu(WindowKind::palette, static_cast<MenuId>(id)))
            all.push_back(picture(
                stage, [&](QMenu& menu) { fillMenu(menu, static_cast<MenuId>(id), context); }, -1));
    all.push_back(picture(
        stage, [&](QMenu& menu) { fillMoreMenu(menu, [context] { return context; }); }, -1));
    return sheet(all, 4);
}

QImage menuBar(Stage& stage) {
    stage.fill(harbourLight(7), {560, 348});
    stage.perform(ActionId::showMenuBar);
    auto& window = stage.window();
    auto* bar = dynamic_cast<QMenuBar*>(window.childAt(20, 10));
    if (!bar) throw std::logic_error("the menu bar is not where it should be");
    auto* palette = bar->actions().at(2);
    bar->setActiveAction(palette);
    auto* menu = palette->menu();
    menu->popup(bar->mapToGlobal(bar->actionGeometry(palette).bottomLeft()));
    stage.settle();
    auto whole = stage.grab(window);
    QPainter painter(&whole);
    painter.drawImage(window.mapFromGlobal(menu->pos()), stage.grab(*menu));
    menu->close();
    return whole;
}

constexpr std::array kScenes{
    Scene{"menus", kBoth, menus},
    Scene{"menus-all", kLight, everyMenu},
    Scene{"menu-bar", kLight, menuBar},
};

} // namespace

std::span<const Scene> menuScenes() {
    return kScenes;
}

} // namespace tintra::tour
