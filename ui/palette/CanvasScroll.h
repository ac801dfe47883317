#pragma once

#include <QScrollArea>

namespace tintra {

class Canvas;

/// Scrolls a canvas up and down, with the wheel and the bar alone: the keys are the canvas's and
/// the window's.
class CanvasScroll final : public QScrollArea {
public:
    explicit CanvasScroll(QWidget* parent);

    void hold(Canvas& canvas);
    /// Brings a place of the canvas into view, with what surrounds it.
    void reveal(const QRect& what);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace tintra
