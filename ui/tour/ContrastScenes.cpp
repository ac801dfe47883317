#include "state/Models.h"
#include "ui/contrast/ContrastWindow.h"
#include "ui/tour/Scenes.h"

namespace tintra::tour {
namespace {

using Mode = ContrastBoard::Mode;

void hold(ContrastBoard& board, const Palette& palette) {
    for (std::size_t i = 0; i < palette.colours.size(); ++i)
        board.hold(palette.names[i], palette.colours[i]);
}

void pair(ContrastBoard& board, std::size_t text, std::size_t ground) {
    const Uuid textID = board.entries()[text].id, groundID = board.entries()[ground].id;
    board.setRole(Contrast::Role::text, textID);
    board.setRole(Contrast::Role::ground, groundID);
}

ContrastWindow& opened(Stage& stage, QSize size) {
    stage.app().openContrast();
    auto& window = stage.open<ContrastWindow>();
    window.resize(size);
    stage.settle();
    return window;
}

/// Slack Tide on Salt, among eleven colours.
ContrastBoard& usual(Stage& stage) {
    auto& board = stage.ui().models.contrast();
    hold(board, harbourLight(11));
    pair(board, 2, 4);
    return board;
}

QImage slackTideOnSalt(Stage& stage) {
    usual(stage);
    return stage.grab(opened(stage, {1120, 728}));
}

QImage reached(Stage& stage) {
    auto& board = usual(stage);
    pair(board, 0, 4);
    board.measure = ContrastBoard::Measure::apca;
    return stage.grab(opened(stage, {1120, 728}));
}

/// Greys of the middle: no lightness of either is seven times the other.
QImage outOfReach(Stage& stage) {
    auto& board = stage.ui().models.contrast();
    hold(board, {{}, {colour("8a8a8a"), colour("757575")}, {"Pewter", "Lead"}});
    pair(board, 0, 1);
    board.target = Contrast::Target::aaa;
    return stage.grab(opened(stage, {1120, 728}));
}

/// Large, bold words of another face, as seen by another eye, in the smallest window.
QImage small(Stage& stage) {
    auto& board = usual(stage);
    board.family = "JetBrains Mono";
    board.size = 28;
    board.weight = 900;
    board.specimen = "Departures change with the tide.";
    board.vision = Vision::deuteranopia;
    return stage.grab(opened(stage, {720, 520}));
}

/// The keyboard on Salt on Signal, beyond the cell that it begins at.
QImage twelveInAMatrix(Stage& stage) {
    auto& board = stage.ui().models.contrast();
    hold(board, harbourLight());
    board.mode = Mode::matrix;
    auto& window = opened(stage, {992, 692});
    for (int down = 0; down < 1 + 4; ++down)
        stage.press(Qt::Key_Down);
    for (int right = 0; right < 6; ++right)
        stage.press(Qt::Key_Right);
    return stage.grab(window);
}

/// Below 4.5 the figure of a filled cell is set apart from its sample; rows are grounds.
QImage interfaceParts(Stage& stage) {
    auto& board = stage.ui().models.contrast();
    hold(board, harbourLight());
    board.mode = Mode::matrix;
    board.target = Contrast::Target::parts;
    board.matrixRowsAreText = false;
    return stage.grab(opened(stage, {992, 692}));
}

QImage ladderOnInk(Stage& stage) {
    auto& board = stage.ui().models.contrast();
    hold(board, harbourLight());
    pair(board, 2, 0);
    board.mode = Mode::ladder;
    return stage.grab(opened(stage, {920, 744}));
}

QImage empty(Stage& stage) {
    return stage.grab(opened(stage, {720, 520}));
}

constexpr Scene kScenes[] = {
    {"contrast-pair", kAll, slackTideOnSalt},
    {"contrast-reached", kLight, reached},
    {"contrast-out-of-reach", kLight, outOfReach},
    {"contrast-small", kBoth, small},
    {"contrast-matrix", kBoth, twelveInAMatrix},
    {"contrast-matrix-parts", kLight, interfaceParts},
    {"contrast-ladder", kBoth, ladderOnInk},
    {"contrast-empty", kBoth, empty},
};

} // namespace

std::span<const Scene> contrastScenes() {
    return kScenes;
}

} // namespace tintra::tour
