// Colours dragged from the Bench and dropped on it.

#include "palettes/PastedText.h"
#include "platform/Services.h"
#include "platform/Toasts.h"
#include "state/Models.h"
#include "state/NoticeTexts.h"
#include "ui/bench/BenchCanvas.h"
#include "ui/shared/ColourDrag.h"
#include "ui/shared/Text.h"

#include <QDropEvent>

namespace tintra {

void BenchCanvas::startDrag(int item) {
    const auto active = selectionOf(item);
    if (!active) return;
    const auto& one = items()[static_cast<std::size_t>(item)];
    SwatchLook card;
    Drag dragged;
    if (active->kind == BenchSelection::Of::column) {
        const auto& of = columnAt(one.index);
        card = look(one);
        card.code = one.value;
        dragged = {bench_.currentColor(of), of.keptName, DragOfBenchColumn{of.id}};
    } else {
        const auto color = bench_.wellColor(bench_.benchWells()[one.index]);
        if (!color) return;
        card.color = *color;
        card.vision = bench_.vision;
        card.code = one.value.section(QStringLiteral(", "), 1);
        dragged = {*color, std::nullopt, DragOfWell{}};
    }
    card.leftBehind = false;
    const QPointer<BenchCanvas> self(this);
    if (active->kind == BenchSelection::Of::column && !bench_.isReorderingPaused())
        bench_.draggingBenchColumn = active->id;
    update();
    dragColour(*this, ui_.painter, dragged, card, kDragCard);
    // The window may have been closed in the middle of the drag.
    if (!self) return;
    bench_.draggingBenchColumn = std::nullopt;
    setInsertion(std::nullopt);
    update();
}

void BenchCanvas::receiveText(const std::string& text) {
    const auto found = coloursIn(text);
    if (found.empty())
        ui_.services.toasts.show(toUtf8(worded("Nothing there that reads as a colour")), kBriefly,
                                 {}, {ToastWindow::bench, {}});
    else
        bench_.receiveAll(found);
}

// Where it would go

std::size_t BenchCanvas::insertionAt(QPointF place) const {
    for (std::size_t i = 0; i < stand_.columns.size(); ++i)
        if (place.x() < stand_.columns[i].center().x()) return i;
    return stand_.columns.size();
}

QRectF BenchCanvas::insertionBar() const {
    constexpr qreal kThick = 6;
    if (!insertion_ || stand_.columns.empty()) return {};
    const bool atEnd = *insertion_ >= stand_.columns.size();
    const auto x = atEnd ? stand_.columns.back().right() : stand_.columns[*insertion_].left();
    return {x - kThick / 2, stand_.group.top(), kThick, stand_.group.height()};
}

void BenchCanvas::setInsertion(std::optional<std::size_t> at) {
    bench_.swatchIsOver = at.has_value();
    if (at == insertion_) return;
    const auto repaint = [this] {
        if (stand_.columns.empty())
            update();
        else
            update(insertionBar().toAlignedRect().adjusted(-2, -2, 2, 2));
    };
    repaint();
    insertion_ = at;
    repaint();
}

bool BenchCanvas::isRefused(const Drag& drag) const {
    const bool moves = std::holds_alternative<DragOfBenchColumn>(drag.source);
    return moves ? bench_.isReorderingPaused() : bench_.refusal(drag).has_value();
}

// The Bench holds colours only: palettes and pictures are not taken.

void BenchCanvas::dragEnterEvent(QDragEnterEvent* event) {
    const auto& mime = *event->mimeData();
    const bool isColour = mime.hasFormat(QString::fromLatin1(kColourMimeType)) || mime.hasColor();
    isOffered_ = isColour || (mime.hasText() && !mime.hasUrls() && !mime.hasImage());
    event->setAccepted(isOffered_);
    offered_ = isColour ? dropped(mime).colour : std::nullopt;
}

void BenchCanvas::dragMoveEvent(QDragMoveEvent* event) {
    if (!isOffered_) return;
    event->acceptProposedAction();
    if (offered_ && isRefused(*offered_)) {
        // The cursor says no, but the drop is let come, to be told why.
        event->setDropAction(Qt::IgnoreAction);
        event->accept();
        setInsertion(std::nullopt);
        return;
    }
    setInsertion(offered_ ? insertionAt(event->position()) : stand_.columns.size());
    if (reveal) reveal(QRect(event->position().toPoint(), QSize(1, 1)).adjusted(-24, 0, 24, 0));
}

void BenchCanvas::dragLeaveEvent(QDragLeaveEvent*) {
    setInsertion(std::nullopt);
    offered_.reset();
    isOffered_ = false;
}

void BenchCanvas::dropEvent(QDropEvent* event) {
    const auto at = insertionAt(event->position());
    const auto drop = dropped(*event->mimeData());
    dragLeaveEvent(nullptr);
    if (drop.colour) {
        const auto before =
            at < bench_.benchColumns().size() ? std::optional(columnAt(at).id) : std::nullopt;
        const bool refused = isRefused(*drop.colour);
        bench_.receive(*drop.colour, before);
        if (!refused) event->acceptProposedAction();
    } else if (drop.text) {
        receiveText(toUtf8(*drop.text));
        event->acceptProposedAction();
    }
}

} // namespace tintra
