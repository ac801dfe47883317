#include "ui/palette/PalettePanels.h"

#include "ui/shared/Text.h"

namespace tintra::palettePanels {

QWidget* emptyState(Ui&, AppState&, QWidget* parent) {
    return new QWidget(parent);
}

QWidget* seedRow(Ui&, AppState&, QWidget* parent) {
    return new QWidget(parent);
}

Bands bands(Ui&, AppState&, std::function<void()>, QWidget* parent) {
    return {new QWidget(parent), [] { return std::nullopt; }};
}

QWidget* editor(Ui&, AppState&, QWidget* parent) {
    return new QWidget(parent);
}

QWidget* picturePane(Ui&, AppState&, QWidget* parent) {
    return new QWidget(parent);
}

QWidget* pictureBar(Ui&, AppState&, QWidget* parent) {
    return new QWidget(parent);
}

QWidget* collapsedStrip(Ui&, AppState&, QWidget* parent) {
    return new QWidget(parent);
}

std::function<void()> pasteSheet(Ui&, AppState&, QWidget*) {
    return [] {};
}

} // namespace tintra::palettePanels
