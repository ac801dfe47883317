#pragma once

#include "colour/Vision.h"
#include "ui/editor/PickerControl.h"

#include <QImage>

namespace tintra {

/// The ring of hues, red at the right, against the clock. A plane stands in its middle.
class ColourWheel final : public PickerControl {
public:
    /// Of the ring, px at regular text size.
    static constexpr int kDiameter = 212, kWidth = 22, kSquare = 108;

    ColourWheel(Theme& theme, QWidget* parent);

    /// In degrees.
    void show(double hue, const QColor& thumb, Vision vision);
    std::function<void(double degrees)> changed;

    QString spokenValue() const override;
    std::optional<Scale> scale() const override { return Scale{hue_, 0, 360, 1}; }
    void choose(double value) override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool takes(QPointF press) const override;
    void dragTo(QPointF place) override;
    void stepBy(int right, int up) override;
    void goToEnd(bool last) override;

private:
    /// Of the middle of the ring.
    qreal radius() const;
    QPointF thumbPlace() const;
    QRect thumbRect() const;
    const QImage& picture();

    double hue_ = 0;
    QColor thumb_;
    Vision vision_ = Vision::typical;
    QImage picture_; ///< null when it has to be made anew
};

} // namespace tintra
