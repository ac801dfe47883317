// Colours dragged from a palette and dropped on it.

#include "platform/MainLoop.h"
#include "platform/Services.h"
#include "state/Models.h"
#include "ui/palette/FileDrops.h"
#include "ui/palette/PaletteCanvas.h"
#include "ui/shared/ColourDrag.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QDropEvent>

namespace tintra {
namespace {

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
    shape.code = items()[at].value;
    constexpr std::size_t kMany = 12;
    state_.draggingSwatch = at;
    update();
    const QPointer<PaletteCanvas> self(this);
    dragColour(*this, ui_.painter, dragged, shape,
               items().size() > kMany ? kSmallDragCard : kDragCard);
    // The window may have been closed in the middle of the drag.
    if (!self) return;
    state_.draggingSwatch = std::nullopt;
    setInsertion(std::nullopt);
    update();
}

std::size_t PaletteCanvas::insertionAt(QPointF place) const {
    const auto shape = stand_.shape;
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
    if (stand_.shape == SwatchShape::row) {
        const auto y = atEnd ? in.bottom() : in.top();
        return {in.left(), y - kThick / 2, in.width(), kThick};
    }
    const bool isTile = stand_.shape == SwatchShape::tile;
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
    if (!moving) return;
    const auto from = state_.draggingSwatch.value();
    if (from && at)
        moving(std::pair(*from, *at > *from ? *at - 1 : *at));
    else
        moving(std::nullopt);
}

// What is no single colour goes to the window, which takes it wherever it falls.

void PaletteCanvas::dragEnterEvent(QDragEnterEvent* event) {
    const auto* mime = event->mimeData();
    event->setAccepted(mime->hasFormat(QString::fromLatin1(kColourMimeType)) || mime->hasColor());
    offered_ = event->isAccepted() ? dropped(*mime).colour : std::nullopt;
}

void PaletteCanvas::dragMoveEvent(QDragMoveEvent* event) {
    if (!offered_) return;
    const bool moves = asksToMove(*event) || isFrom(*offered_, state_.id());
    event->acceptProposedAction();
    if (state_.refusal(*offered_, moves)) {
        // The cursor says no, but the drop is let come, to be told why.
        event->setDropAction(Qt::IgnoreAction);
        event->accept();
        setInsertion(std::nullopt);
        return;
    }
    setInsertion(insertionAt(event->position()));
    draggedAt_ = event->position();
    if (!scrolling_) scrollOn();
}

/// Scrolls, and goes on as long as the drag stays near an edge of what is seen.
void PaletteCanvas::scrollOn() {
    constexpr int kEdge = 24, kStep = 8;
    constexpr double kPace = 0.03; ///< seconds
    scrolling_.reset();
    const auto seen = visibleRegion().boundingRect();
    const bool up = draggedAt_.y() < seen.top() + kEdge;
    if (!reveal || (!up && draggedAt_.y() <= seen.bottom() - kEdge)) return;
    const auto to = up ? seen.top() - kStep : seen.bottom() + kStep;
    reveal(QRect(QPoint(static_cast<int>(draggedAt_.x()), to), QSize(1, 1)));
    const auto moved = visibleRegion().boundingRect().top() - seen.top();
    if (moved == 0) return;
    draggedAt_ += QPointF(0, moved);
    setInsertion(insertionAt(draggedAt_));
    scrolling_ = ui_.services.mainLoop.after(kPace, [this] { scrollOn(); });
}

void PaletteCanvas::dragLeaveEvent(QDragLeaveEvent*) {
    setInsertion(std::nullopt);
    offered_.reset();
    scrolling_.reset();
}

void PaletteCanvas::dropEvent(QDropEvent* event) {
    const auto at = insertionAt(event->position());
    const auto drop = dropped(*event->mimeData());
    dragLeaveEvent(nullptr);
    if (!drop.colour) return;
    const bool moves = asksToMove(*event) || isFrom(*drop.colour, state_.id());
    if (receiveColour(ui_, state_, *drop.colour, at, moves)) event->acceptProposedAction();
}

} // namespace tintra
