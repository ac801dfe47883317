#pragma once

#include "ui/library/LibraryListing.h"

#include <QPointF>
#include <QRectF>
#include <QString>
#include <cstddef>
#include <vector>

namespace tintra {

class Theme;

/// What stands in an unfolded row: its swatches and what can be done with the palette.
class LibraryPanel {
public:
    /// What can be done, in order; those from `duplicate` on stand at the right.
    enum Action { open, openInNewWindow, install, installFor, duplicate, reveal, trash };
    struct Button {
        Action action;
        QRectF rect;
        QString title;
    };
    /// More swatches than this are not shown one by one.
    static constexpr std::size_t kMost = 512;

    /// At a place of that width; `rect` then has the height that it takes. `installsFor`: there are
    /// drawing programs to install for.
    LibraryPanel(const Theme& theme, const LibraryPalette& palette, bool installsFor,
                 QPointF topLeft, qreal width);

    const QRectF& rect() const { return rect_; }
    /// Each with the room for its words, unless they are small.
    const std::vector<QRectF>& swatches() const { return swatches_; }
    /// Whether the swatches of a palette of so many stand close together, without words.
    static bool isSmall(std::size_t count);
    const std::vector<Button>& buttons() const { return buttons_; }
    /// Where it says how many swatches are not shown; empty for none.
    const QRectF& rest() const { return rest_; }
    std::size_t hidden() const { return hidden_; }
    /// How high a swatch is painted.
    static qreal swatchHeight(const Theme& theme);

private:
    qreal addSwatches(const Theme& theme, std::size_t count);
    qreal addButtons(const Theme& theme, const LibraryPalette& palette, bool installsFor, qreal y);

    QRectF rect_, rest_;
    std::vector<QRectF> swatches_;
    std::vector<Button> buttons_;
    std::size_t hidden_ = 0;
};

} // namespace tintra
