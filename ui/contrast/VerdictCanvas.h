#pragma once

#include "state/ContrastReadings.h"
#include "ui/Ui.h"
#include "ui/shared/Canvas.h"
#include "ui/shared/Subscriptions.h"
#include "ui/shared/Upkeep.h"

#include <array>

namespace tintra {

/// What is measured of the pair: the figure, the figure of the other measure, and what of the
/// levels of WCAG it reaches.
class VerdictCanvas final : public Canvas {
public:
    enum Kind { figure, otherMeasure, level, verdict };

    VerdictCanvas(Ui& ui, QWidget* parent);

    /// "3.90:1" or "Lc 61"; empty while the pair is not complete.
    QString figureText() const;
    int heightNeeded() const;

protected:
    std::vector<CanvasItem> layoutItems(QSizeF size) const override;
    void paintGround(QPainter& painter, const QRect& dirty) override;
    void paintItem(QPainter& painter, const CanvasItem& item, ItemState state) override;
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void sync();
    void paintFigure(QPainter& painter, const QRectF& in) const;
    void paintLevel(QPainter& painter, const CanvasItem& item) const;
    void paintVerdict(QPainter& painter, const QRectF& in) const;
    /// Where the figures stand.
    qreal baseLine(const QRectF& in) const;

    Ui& ui_;
    ContrastBoard& board_;
    struct Level {
        QString words, need;
        bool passes = false;
    };
    ContrastReading reading_; ///< by the measure that is shown
    QString names_, other_, verdict_;
    std::array<Level, 3> levels_;
    Upkeep upkeep_{*this, [this] { sync(); }};
    Subscriptions subscriptions_;
};

} // namespace tintra
