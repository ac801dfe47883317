#pragma once

#include <QPainter>
#include <QString>

namespace tintra {

class Theme;

/// A chip with a word in it, such as OFFLINE or a tag: filled, or with a border alone.
enum class BadgeFill { no, yes };
qreal badgeWidth(const Theme& theme, const QString& text);
/// At that place, centred upright on `middle`; answers where it ends.
qreal paintBadge(QPainter& painter, const Theme& theme, const QString& text, qreal left,
                 qreal middle, BadgeFill fill);

} // namespace tintra
