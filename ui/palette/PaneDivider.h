#pragma once

#include "ui/Ui.h"

#include <QWidget>

namespace tintra {

/// Between the picture and the palette: dragged, or moved with the arrows, it gives the picture a
/// third, a half or two thirds of its parent's width.
class PaneDivider final : public QWidget {
public:
    PaneDivider(Ui& ui, QWidget* parent);

    static constexpr int kWidth = 12;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void step(int by);

    Ui& ui_;
};

} // namespace tintra
