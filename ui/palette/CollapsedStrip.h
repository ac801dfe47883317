#pragma once

#include "state/AppState.h"
#include "ui/Ui.h"
#include "ui/shared/Subscriptions.h"

#include <QWidget>

namespace tintra {

class StripCells;
class ToolButton;

/// A palette window folded into a strip: what moves it, its colours, and what unfolds it. 44 px
/// high or 52 px wide.
class CollapsedStrip final : public QWidget {
public:
    CollapsedStrip(Ui& ui, AppState& state, QWidget* parent);
    ~CollapsedStrip() override;

    Qt::Orientation orientation() const;
    StripCells& cells() const { return *cells_; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void layOut();
    /// A place along the strip, as thick as the cells.
    QRect along(int from, int length) const;
    void syncArrows();
    QRect gripRect() const;

    Ui& ui_;
    AppState& state_;
    StripCells* cells_;
    ToolButton *back_, *forward_, *expand_;
    Subscriptions subscriptions_;
};

} // namespace tintra
