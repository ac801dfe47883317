#pragma once

#include "colour/Vision.h"
#include "colour/WashColor.h"
#include "state/Choices.h"
#include "ui/shared/TextLines.h"

#include <QColor>
#include <QPainter>
#include <QPixmap>
#include <QRectF>
#include <QString>
#include <array>
#include <string_view>
#include <vector>

namespace tintra {

class Preferences;
class Theme;

/// How a swatch's words stand.
enum class SwatchShape {
    column,   ///< index at the top, name (two lines at most) and code at the foot
    onSide,   ///< a narrow column: code and name rotated by 90°
    row,      ///< name at the left, code at the right
    tile,     ///< as a column, with round corners
    cell,     ///< no words
    bandCell, ///< code at the foot
};

/// A button that stands on a swatch.
struct SwatchButton {
    std::string_view icon;
    bool hovered = false, pressed = false;
};

/// What a swatch shows.
struct SwatchLook {
    WashColor color;
    Vision vision = Vision::typical;
    SwatchShape shape = SwatchShape::column;
    QString name, code;
    QString index;            ///< at the top; empty for none
    bool ownPin = false;      ///< the index stands in a square instead of a circle
    bool pinned = false;      ///< the index stands in a circle
    bool codeFlashes = false; ///< the code is inverted: it was just copied
    bool hidesName = false;   ///< a field stands in its place
    bool selected = false, focused = false;
    bool leftBehind = false; ///< lifted: only a dashed outline is left
    std::vector<SwatchButton> buttons;
    qreal clearTop = 0;         ///< px at the top that a name on its side keeps out of
    std::array<int, 4> radii{}; ///< top left, top right, bottom right, bottom left, px
};

/// Draws swatches, the same in every window. Main loop.
class SwatchPainter {
public:
    SwatchPainter(const Theme& theme, const Preferences& preferences);

    /// The opaque colour that a swatch shows where words stand: vision applied, over the backdrop.
    WashColor flat(const WashColor& color, Vision vision) const;
    /// Black or white, whichever is readable there.
    QColor foreground(const WashColor& color, Vision vision) const;

    /// Fill, backdrop, hairline, words, buttons, selection and focus.
    void paint(QPainter& painter, const QRectF& in, const SwatchLook& look) const;
    /// Fill and backdrop alone.
    void fill(QPainter& painter, const QRectF& in, const WashColor& color, Vision vision,
              std::array<int, 4> radii = {}) const;
    /// The 1 px inner edge of a group.
    void hairline(QPainter& painter, const QRectF& in, int radius) const;
    /// A small chip of a colour.
    void chip(QPainter& painter, const QRectF& in, const WashColor& color, Vision vision) const;

    // Where the parts of a painted swatch are, for hit tests and fields.
    QRectF nameRect(const QRectF& in, const SwatchLook& look) const;
    QRectF codeRect(const QRectF& in, const SwatchLook& look) const;
    std::vector<QRectF> buttonRects(const QRectF& in, SwatchShape shape, std::size_t count) const;

    /// What is dragged: a tilted card.
    QPixmap card(const SwatchLook& look, QSize size, qreal ratio) const;

private:
    void paintRings(QPainter& painter, const QRectF& in, const SwatchLook& look,
                    const QColor& ink) const;

    const Theme& theme_;
    const Preferences& preferences_;
    mutable TextLines lines_;
};

/// The round corners of a swatch within its group.
std::array<int, 4> radiiWithin(const QRectF& swatch, const QRectF& group, int radius);

/// Gamma-encoded sRGB, clamped; alpha as it is.
QColor toQColor(const WashColor& color);
WashColor fromQColor(const QColor& color);

} // namespace tintra
