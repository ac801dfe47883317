#include "ui/contrast/EntryDrag.h"

#include "state/Models.h"
#include "ui/shared/ColourDrag.h"
#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Text.h"

#include <QApplication>
#include <QMouseEvent>
#include <utility>

namespace tintra {

void dragEntry(Ui& ui, QWidget& from, const Uuid& entry) {
    auto& board = ui.models.contrast();
    const auto* found = board.entry(entry);
    if (!found) return;
    const auto held = *found;
    const auto name = board.name(held);
    const auto& preferences = ui.models.preferences();
    SwatchLook look;
    look.color = held.color;
    look.vision = board.vision;
    look.name = oneLine(name);
    look.code = fromUtf8(
        preferences.format.value().string(held.color, name, preferences.formatOptions.value()));
    board.draggingEntry = held.id;
    dragColour(from, ui.painter, {held.color, held.givenName, DragOfContrastEntry{held.id}}, look,
               kDragCard);
    board.draggingEntry = std::nullopt;
}

void EntryPull::press(const QMouseEvent& event, std::optional<Uuid> entry) {
    entry_ = event.button() == Qt::LeftButton ? std::move(entry) : std::nullopt;
    at_ = event.position();
}

std::optional<Uuid> EntryPull::pulled(const QMouseEvent& event) {
    const auto far = (event.position() - at_).manhattanLength();
    if (!(event.buttons() & Qt::LeftButton) || far < QApplication::startDragDistance())
        return std::nullopt;
    return std::exchange(entry_, std::nullopt);
}

} // namespace tintra
