// Colours dragged from a palette and dropped on it.

#include "palettes/PaletteFile.h"
#include "state/Models.h"
#include "ui/palette/FileDrops.h"
#include "ui/palette/PaletteCanvas.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QDrag>
#include <QDropEvent>

namespace tintra {
namespace {

/// Ctrl asks to move a swatch of another palette instead of copying it.
bool asksToMove(const QDropEvent& event) {
    return event.modifiers().testFlag(Qt::ControlModifier);
}

bool isFrom(const Drag& drag, const Uuid& window) {
    const auto* swatch = std::get_if<DragOfSwatch>(&drag.source);
    return swatch && swatch->origin.windowID == window;
}

} // namespace

void PaletteCanvas::startDrag(std::size_t at) {
    pressed_.reset();
    const auto& held = state_.swatches()[at];
    const Drag dragged{held.color, held.name,
                       DragOfSwatch{{state_.currentPaletteName(), state_.id(), held.id, at}}};
    auto shape = look(at);
    const bool fromStrip = items().size() > 12;
    QDrag drag(this);
    drag.setMimeData(mimeOf(dragged, code(at)).release());
    drag.setPixmap(ui_.painter.card(shape, fromStrip ? QSize(96, 72) : QSize(128, 96), false,
                                    devicePixelRatioF()));
    drag.setHotSpot({30, 30});
    state_.draggingSwatch = at;
    relayout();
    const QPointer<PaletteCanvas> self(this);
    drag.exec(Qt::CopyAction | Qt::MoveAction, Qt::CopyAction);
    // The window may have been closed in the middle of the drag.
    if (!self) return;
    state_.draggingSwatch = std::nullopt;
    setInsertion(std::nullopt);
    relayout();
}

std::size_t PaletteCanvas::insertionAt(QPointF place) const {
    const auto shape = places(QSizeF(size())).shape;
    const auto count = state_.swatches().size();
    for (std::size_t i = 0; i < count; ++i) {
        const auto& in = items()[i].rect;
        const bool sameLine = shape == SwatchShape::row || place.y() < in.bottom() + 6;
        const auto middle = in.center();
        if (sameLine &&
            (shape == SwatchShape::row ? place.y() < middle.y() : place.x() < middle.x()))
            return i;
        // Behind the last of a line, before the first of the next one.
        const bool endsLine = i + 1 == count || items()[i + 1].rect.top() > in.top();
        if (shape != SwatchShape::row && sameLine && endsLine) return i + 1;
    }
    return count;
}

QRectF PaletteCanvas::insertionBar() const {
    constexpr qreal kThick = 6;
    const auto count = state_.swatches().size();
    if (!insertion_ || count == 0) return {};
    const bool atEnd = *insertion_ >= count;
    const auto in = items()[atEnd ? count - 1 : *insertion_].rect;
    if (places(QSizeF(size())).shape == SwatchShape::row) {
        const auto y = atEnd ? in.bottom() : in.top();
        return {in.left(), y - kThick / 2, in.width(), kThick};
    }
    const bool isTile = display_ == PaletteDisplay::tiles;
    const auto x = atEnd ? in.right() + (isTile ? 6 : 0) : in.left() - (isTile ? 6 : 0);
    return {x - kThick / 2, in.top(), kThick, in.height()};
}

void PaletteCanvas::setInsertion(std::optional<std::size_t> at) {
    state_.swatchIsOver = at.has_value();
    if (at == insertion_) return;
    const auto repaintBar = [this] {
        update(insertionBar().toAlignedRect().adjusted(-2, -2, 2, 2));
    };
    repaintBar();
    insertion_ = at;
    repaintBar();
}

void PaletteCanvas::dragEnterEvent(QDragEnterEvent* event) {
    if (isUnderstood(*event->mimeData())) event->acceptProposedAction();
}

void PaletteCanvas::dragMoveEvent(QDragMoveEvent* event) {
    const auto* mime = event->mimeData();
    if (mime->hasFormat(QString::fromLatin1(kColourMimeType)) || mime->hasColor()) {
        setInsertion(insertionAt(event->position()));
    } else {
        wholeTarget_ = true;
        state_.fileIsOver = true;
        update();
    }
    event->acceptProposedAction();
}

void PaletteCanvas::dragLeaveEvent(QDragLeaveEvent*) {
    setInsertion(std::nullopt);
    wholeTarget_ = false;
    state_.fileIsOver = false;
    update();
}

void PaletteCanvas::dropEvent(QDropEvent* event) {
    const auto at = insertionAt(event->position());
    dragLeaveEvent(nullptr);
    const auto drop = dropped(*event->mimeData());
    if (drop.colour) {
        const auto moving = asksToMove(*event) || isFrom(*drop.colour, state_.id());
        if (state_.receive(*drop.colour, at, moving)) event->acceptProposedAction();
        return;
    }
    event->acceptProposedAction();
    receiveFiles(state_, drop);
}

} // namespace tintra
