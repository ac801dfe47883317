#pragma once

#include "state/Drag.h"

#include <QPixmap>
#include <QSize>

class QWidget;

namespace tintra {

class SwatchPainter;
struct SwatchLook;

inline constexpr QSize kDragCard(128, 96), kSmallDragCard(96, 72);

/// Drags a colour out of a widget, as a card of that size, and returns when it is dropped or let
/// go; the widget may be gone by then. Only a palette's swatch can move. Where it is refused, the
/// pointer is a prohibited badge on the card.
void dragColour(QWidget& from, const SwatchPainter& painter, const Drag& dragged,
                const SwatchLook& look, QSize card);

/// The pointer over what refuses a drag, for a screen of that ratio.
QPixmap prohibitedBadge(qreal ratio);

} // namespace tintra
