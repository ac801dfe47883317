#pragma once

#include "state/AppState.h"
#include "ui/Ui.h"
#include "ui/palette/PaletteWindow.h"

#include <QWidget>
#include <functional>
#include <optional>

// The panels that a palette window is assembled from, one function each. The parent owns what they
// answer.

namespace tintra::palettePanels {

/// The quotation and what to begin with, while there is nothing to show.
QWidget* emptyState(Ui& ui, AppState& state, QWidget* parent);
/// The seeds of a harmony and what it is made with.
QWidget* seedRow(Ui& ui, AppState& state, QWidget* parent);

struct Bands {
    QWidget* widget;
    std::function<std::optional<PaletteWindow::Target>()> target;
};
/// The colours of a harmony; `changed` is told when what actions act on may have changed.
Bands bands(Ui& ui, AppState& state, std::function<void()> changed, QWidget* parent);

QWidget* editor(Ui& ui, AppState& state, QWidget* parent);
QWidget* picturePane(Ui& ui, AppState& state, QWidget* parent);
QWidget* pictureBar(Ui& ui, AppState& state, QWidget* parent);
/// The window folded into a strip.
QWidget* collapsedStrip(Ui& ui, AppState& state, QWidget* parent);
/// Answers what opens the sheet for typed and pasted values over the window.
std::function<void()> pasteSheet(Ui& ui, AppState& state, QWidget* window);

} // namespace tintra::palettePanels
