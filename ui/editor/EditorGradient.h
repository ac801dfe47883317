#pragma once

#include "colour/Vision.h"
#include "ui/editor/EditedColour.h"

#include <QImage>
#include <QRgb>
#include <vector>

// The colours along the editor's tracks, as evenly spaced stops that may be joined linearly. Pure;
// any thread.

namespace tintra {

using GradientStops = std::vector<QRgb>;

/// What a channel would give from its lowest to its highest figure, as that vision sees it.
GradientStops channelStops(const EditedFigures& figures, std::size_t channel, Vision vision);
/// From transparent to opaque.
GradientStops alphaStops(const WashColor& color, Vision vision);
/// The hues at full saturation and brightness.
GradientStops hueStops(Vision vision);

/// A row of pixels through the stops.
QImage gradientRow(const GradientStops& stops, int width);

} // namespace tintra
