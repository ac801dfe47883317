#pragma once

#include <QWidget>
#include <functional>

namespace tintra {

/// A small place that starts a drag and takes no part otherwise; who makes it says what it looks
/// like.
class DragHandle final : public QWidget {
public:
    explicit DragHandle(QWidget* parent);

    std::function<void(QPainter&, const QRect&)> paint;
    std::function<void()> drag;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    QPoint pressedAt_;
};

} // namespace tintra
