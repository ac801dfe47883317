#pragma once

#include <QScrollArea>

namespace tintra {

class Canvas;

/// Scrolls a canvas up and down, or sideways, with the wheel and the bar alone: the keys are the
/// canvas's and the window's.
class CanvasScroll final : public QScrollArea {
public:
    explicit CanvasScroll(QWidget* parent, Qt::Orientation along = Qt::Vertical);

    void hold(Canvas& canvas);
    /// Brings a place of the canvas into view, with what surrounds it.
    void reveal(const QRect& what);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    const Qt::Orientation along_;
};

} // namespace tintra
