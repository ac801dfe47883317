#pragma once

#include "colour/Vision.h"
#include "ui/editor/PickerControl.h"

#include <QImage>

namespace tintra {

/// Saturation from left to right, brightness from bottom to top, of one hue. Its picture lies
/// `kHalo` px inside of the widget.
class ColourPlane final : public PickerControl {
public:
    ColourPlane(Theme& theme, QWidget* parent);

    /// Hue in degrees, saturation and brightness in percent. `thumb` is the colour there.
    void show(double hue, double saturation, double brightness, const QColor& thumb, Vision vision);
    /// Is told saturation and brightness, in percent.
    std::function<void(double saturation, double brightness)> changed;

    QString spokenValue() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool takes(QPointF press) const override;
    void dragTo(QPointF place) override;
    void stepBy(int right, int up) override;
    void goToEnd(bool last) override;

private:
    QRectF plane() const;
    QPointF thumbPlace() const;
    QRect thumbRect() const;
    void report(double saturation, double brightness);
    const QImage& picture();

    double hue_ = 0, saturation_ = 0, brightness_ = 0;
    QColor thumb_;
    Vision vision_ = Vision::typical;
    QImage picture_; ///< null when it has to be made anew
};

} // namespace tintra
