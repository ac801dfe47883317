#pragma once

#include "platform/pictures/PictureDecoder.h"

class QImage;

namespace tintra {

/// Hands over every row of a decoded picture, converted piece by piece so that no second picture
/// is held. Answers false for a null one.
bool handOver(const QImage& image, PixelRows& rows);

} // namespace tintra
