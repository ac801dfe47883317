// The palette window: columns, tiles, harmonies, narrow, collapsed.

#include "state/AppState.h"
#include "state/Preferences.h"
#include "ui/palette/PaletteWindow.h"
#include "ui/shared/ColourDrag.h"
#include "ui/shared/ColourMime.h"
#include "ui/shared/NoticeBar.h"
#include "ui/tour/Scenes.h"
#include "ui/tour/Sheet.h"

#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QPainter>
#include <array>

namespace tintra::tour {
namespace {

constexpr QSize kWide(1040, 588), kLow(1040, 488);

QImage columns(Stage& stage) {
    stage.fill(harbourLight(), kWide);
    stage.state().selectedSwatch = 1;
    stage.point(stage.window(), {457, 106});
    return stage.grab(stage.window());
}

QImage forty(Stage& stage) {
    stage.fill(interfaceScale(), kWide);
    stage.state().selectedSwatch = 27;
    return stage.grab(stage.window());
}

QImage tiles(Stage& stage) {
    auto palette = harbourLight();
    palette.names[6] = "Signal Glaze";
    palette.colours[6].a = 0.6;
    stage.fill(palette, {900, 568});
    stage.perform(ActionId::tiles);
    stage.state().selectedSwatch = 9;
    return stage.grab(stage.window());
}

QImage vision(Stage& stage) {
    stage.fill(harbourLight(), kLow);
    stage.state().selectedSwatch = 6;
    stage.state().vision = Vision::deuteranopia;
    return stage.grab(stage.window());
}

QImage empty(Stage& stage) {
    stage.window().resize(900, 548);
    stage.settle();
    stage.press(Qt::Key_Down);
    return stage.grab(stage.window());
}

QImage ramp(Stage& stage) {
    stage.window().resize(1040, 448);
    auto& state = stage.state();
    state.setSeed(AppState::SeedRole::first, colour("ffd166"));
    state.setSeed(AppState::SeedRole::last, colour("4a1a66"));
    state.mode = HarmonyMode::ramp;
    state.steps = 9;
    state.blendSpace = BlendSpace::okLab;
    stage.settle();
    stage.window().resize(1040, 448);
    return stage.grab(stage.window());
}

QImage triadic(Stage& stage) {
    auto& state = stage.state();
    stage.fill(harbourLight(), {1040, 568});
    state.setSeed(AppState::SeedRole::first, colour("1f7a8c"));
    state.setSeed(AppState::SeedRole::last, colour("f3efe6"));
    state.mode = HarmonyMode::triadic;
    state.shadesPerAnchor = 5;
    state.blendSpace = BlendSpace::okLab;
    stage.settle();
    stage.window().resize(1040, 568);
    stage.settle();
    stage.point(stage.window(), {297, 274});
    return stage.grab(stage.window());
}

/// A drag that hovers between the second and the third swatch, and what is lifted.
QImage dragging(Stage& stage) {
    stage.fill(harbourLight(), kLow);
    auto& state = stage.state();
    auto& window = stage.window();
    state.selectedSwatch = 5;
    const auto& held = state.swatches()[5];
    const Drag drag{held.color, held.name,
                    DragOfSwatch{{state.currentPaletteName(), state.id(), held.id, 5}}};
    const auto mime = mimeOf(drag, QStringLiteral("#f4a93b"));
    const QPoint at(214, 240);
    auto* canvas = window.childAt(at);
    const auto there = canvas->mapFrom(&window, at);
    state.draggingSwatch = 5;
    QDragEnterEvent enter(there, Qt::CopyAction | Qt::MoveAction, mime.get(), Qt::LeftButton, {});
    QApplication::sendEvent(canvas, &enter);
    QDragMoveEvent move(there, Qt::CopyAction | Qt::MoveAction, mime.get(), Qt::LeftButton, {});
    QApplication::sendEvent(canvas, &move);
    state.addToPalette(colour("36543a"), AppState::Duplicates::refuse);
    state.selectedSwatch = 5;
    auto picture = stage.grab(window);
    QPainter painter(&picture);
    SwatchLook look;
    look.color = held.color;
    look.name = QStringLiteral("Buoy");
    look.code = QStringLiteral("#f4a93b");
    const QSize size(128, 96);
    const auto ratio = window.devicePixelRatioF();
    painter.drawPixmap(QPoint(200, 220), stage.ui().painter.card(look, size, ratio));
    look.color = colour("36543a");
    look.name = QStringLiteral("Kelp");
    look.code = QStringLiteral("#36543a");
    painter.drawPixmap(QPoint(640, 220), stage.ui().painter.card(look, size, ratio));
    painter.drawPixmap(QPoint(768, 226), prohibitedBadge(ratio));
    return picture;
}

QImage narrow(Stage& stage) {
    stage.fill(harbourLight(8), {360, 388});
    stage.state().selectedSwatch = 3;
    const auto half = stage.grab(stage.window());
    stage.window().resize(240, 388);
    return sheet({half, stage.grab(stage.window())}, 2);
}

QImage collapsed(Stage& stage) {
    stage.fill(harbourLight(), kWide);
    auto& window = stage.window();
    stage.perform(ActionId::collapse);
    window.resize(560, 44);
    stage.settle();
    stage.click(window, {240, 22});
    const auto lying = stage.grab(window);
    stage.state().compactOrientation = CompactOrientation::vertical;
    stage.settle();
    window.resize(52, 480);
    stage.settle();
    stage.click(window, {26, 100});
    return sheet({lying, stage.grab(window)}, 2);
}

/// A translucent palette on every backdrop.
QImage backdrops(Stage& stage) {
    auto palette = harbourLight(6);
    palette.name = "Glaze";
    const std::array alphas{1.0, 0.8, 0.6, 0.4, 0.2, 0.0};
    for (std::size_t i = 0; i < alphas.size(); ++i)
        palette.colours[i].a = alphas.at(i);
    stage.fill(palette, {480, 300});
    std::vector<QImage> pictures;
    for (const auto backdrop : allChoices<SwatchBackdrop>()) {
        stage.preferences().swatchBackdrop = backdrop;
        stage.settle();
        pictures.push_back(stage.grab(stage.window()));
    }
    return sheet(pictures, 3);
}

constexpr std::array kScenes{
    Scene{"palette-columns", kAll, columns},       Scene{"palette-40", kBoth, forty},
    Scene{"palette-tiles", kBoth, tiles},          Scene{"palette-vision", kBoth, vision},
    Scene{"palette-empty", kBoth, empty},          Scene{"palette-ramp", kBoth, ramp},
    Scene{"palette-triadic", kBoth, triadic},      Scene{"palette-dragging", kBoth, dragging},
    Scene{"palette-narrow", kBoth, narrow},        Scene{"strip-collapsed", kBoth, collapsed},
    Scene{"palette-backdrops", kLight, backdrops},
};

} // namespace

std::span<const Scene> paletteScenes() {
    return kScenes;
}

} // namespace tintra::tour
