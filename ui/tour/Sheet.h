#pragma once

#include <QImage>
#include <vector>

namespace tintra::tour {

/// Pictures of windows together on a grey ground, in rows of so many, each row centred.
QImage sheet(const std::vector<QImage>& pictures, int perRow);

/// Writes a picture as small as PNG gets it without loss; answers whether it was written.
bool writeSmall(const QImage& picture, const QString& file);

} // namespace tintra::tour
