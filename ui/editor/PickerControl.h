#pragma once

#include <QColor>
#include <QWidget>
#include <functional>
#include <optional>

namespace tintra {

class Theme;

/// What is dragged over a picture of what it would give: track, plane and ring. A stop of the Tab
/// key and an accessible slider. Arrows are one step, with Shift and the Page keys ten. Main loop.
class PickerControl : public QWidget {
public:
    PickerControl(Theme& theme, QWidget* parent);
    ~PickerControl() override;

    /// Is told when a drag or a key has ended: what was asked for can be settled.
    std::function<void()> settled;

    /// What screen readers say of the value: "80 %, 89 %".
    virtual QString spokenValue() const = 0;

    /// The value of a control with one dimension.
    struct Scale {
        double value, from, to, step;
    };
    virtual std::optional<Scale> scale() const { return std::nullopt; }
    /// As a user sets it.
    virtual void choose(double /*value*/) {}

    /// How far a thumb and its ring reach beyond the picture, px.
    static constexpr int kHalo = 12;

protected:
    Theme& theme() const { return theme_; }
    /// The focus is shown: it came by keyboard, or contrast is high.
    bool showsFocus() const;
    void paintThumb(QPainter& painter, QPointF centre, const QColor& fill) const;
    void announce();

    virtual bool takes(QPointF /*press*/) const { return true; }
    virtual void dragTo(QPointF place) = 0;
    /// Steps to the right and up; a control of one dimension goes by both.
    virtual void stepBy(int right, int up) = 0;
    virtual void goToEnd(bool last) = 0;

    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    bool walk(int key, int by);

    Theme& theme_;
    bool dragging_ = false, focusByKeyboard_ = false;
    int wheel_ = 0; ///< turned since the last whole step
};

/// Rounds the corners of a picture that covers a widget's logical size.
void roundCorners(QImage& picture, qreal radius);

} // namespace tintra
