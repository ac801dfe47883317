#pragma once

#include "ui/library/LibraryLayout.h"
#include "ui/library/LibraryNote.h"
#include "ui/library/LibraryPanel.h"
#include "ui/shared/Theme.h"

#include <QPainter>
#include <QString>
#include <string_view>

namespace tintra {

/// How a palette or a header of the Library is painted.
struct LibraryLook {
    bool isCurrent = false; ///< actions act on it
    bool isFocused = false; ///< with a ring
    bool isHovered = false;
    bool isDragged = false; ///< without buttons
    int hoveredButton = -1; ///< of its small buttons
};

/// A small button of a row, tile or header.
struct LibraryButton {
    enum class Does { unfold, duplicate, reveal, more };
    Does does = Does::more;
    QRectF rect;
    bool isOn = false;
    std::string_view icon() const;
    QString title() const;
};

/// Draws the Library's rows, tiles, headers and what is unfolded. Main loop.
class LibraryPainter {
public:
    LibraryPainter(Ui& ui, const LibraryModel& model) : ui_(ui), model_(model) {}

    void header(QPainter& painter, const QRectF& in, const LibraryListing::Section& section,
                const LibraryLook& look) const;
    void row(QPainter& painter, const QRectF& in, const LibraryLayout::Sides& sides,
             std::size_t find, const LibraryLook& look) const;
    void tile(QPainter& painter, const QRectF& in, std::size_t find, const LibraryLook& look) const;
    /// The ground on which an unfolded palette's swatches stand, and what is written on it.
    void panel(QPainter& painter, const LibraryPanel& panel) const;
    void swatch(QPainter& painter, const QRectF& in, const PaletteFile::Swatch& swatch,
                bool isSmall, const LibraryLook& look) const;
    /// Centred in a large place, at the left of a line.
    void note(QPainter& painter, const QRectF& in, const LibraryNote& note, qreal left) const;

    /// A palette that is being dragged.
    QPixmap card(std::size_t find, qreal ratio) const;

    /// The small buttons of a row, a tile and a header; none of a row that has no room.
    std::vector<LibraryButton> rowButtons(const QRectF& in, const LibraryLayout::Sides& sides,
                                          std::size_t find) const;
    std::vector<LibraryButton> tileButtons(const QRectF& in) const;
    std::vector<LibraryButton> headerButtons(const QRectF& in) const;
    /// Where the button of a note stands.
    QRectF noteButton(const QRectF& in, const LibraryNote& note, qreal left) const;

private:
    /// Words on one line, what does not fit left out.
    void write(QPainter& painter, TextStyle style, Token ink, const QRectF& in, const QString& text,
               Qt::Alignment align = Qt::AlignLeft) const;
    void twoLines(QPainter& painter, const QRectF& in, const QString& first,
                  const QString& second) const;
    void buttons(QPainter& painter, const std::vector<LibraryButton>& buttons, int hovered) const;
    void strip(QPainter& painter, const QRectF& in, std::size_t find) const;
    void matchedStrip(QPainter& painter, const QRectF& in, std::size_t find,
                      std::size_t matched) const;
    void instead(QPainter& painter, const QRectF& in, const LibraryPalette& palette) const;
    void matchedRing(QPainter& painter, const QRectF& around) const;
    void mosaic(QPainter& painter, const QRectF& in, std::size_t find) const;
    void mosaicHairline(QPainter& painter, const QRectF& in) const;
    void value(QPainter& painter, const QRectF& in, std::size_t find) const;

    Ui& ui_;
    const LibraryModel& model_;
};

} // namespace tintra
