#pragma once

#include <QRectF>
#include <QWidget>

class QScrollArea;

namespace tintra {

class Canvas;
class Theme;

/// A bordered field in which a canvas taller than it scrolls.
class ListFrame final : public QWidget {
public:
    ListFrame(Theme& theme, Canvas* canvas, QWidget* parent = nullptr);

    /// Scrolls a part of the canvas into view.
    void reveal(const QRectF& part);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Theme& theme_;
    QScrollArea* scroll_;
};

} // namespace tintra
