#pragma once

#include "colour/Contrast.h"
#include "colour/Vision.h"
#include "ui/shared/SwatchPainter.h"

namespace tintra {

/// How a pair is painted: the text as it appears on the opaque ground, both as a kind of vision
/// sees them. Figures are of the colours themselves.
struct PairColours {
    QColor text, ground;
};
inline PairColours seenPair(const WashColor& text, const WashColor& ground, Vision vision) {
    auto opaque = ground;
    opaque.a = 1;
    return {toQColor(simulate(vision, Contrast::composited(text, ground))),
            toQColor(simulate(vision, opaque))};
}

} // namespace tintra
