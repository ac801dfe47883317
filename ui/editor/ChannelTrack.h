#pragma once

#include "ui/editor/EditorGradient.h"
#include "ui/editor/PickerControl.h"

namespace tintra {

/// The track of one channel, painted with what the channel would give. Its picture lies `kSide` px
/// inside of the widget at either end.
class ChannelTrack final : public PickerControl {
public:
    /// px at regular text size.
    static constexpr int kHeight = 28, kSide = 10;

    ChannelTrack(Theme& theme, QWidget* parent);

    void setChannel(const EditorChannel& channel);
    void setValue(double value);
    /// Translucent stops stand over a checkerboard.
    void setColours(GradientStops stops, const QColor& thumb);
    /// Where the thumb stands for a value, px from the left.
    qreal placeOf(double value) const;
    /// Is told a figure of the channel.
    std::function<void(double)> changed;

    QString spokenValue() const override;
    std::optional<Scale> scale() const override;
    void choose(double value) override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void dragTo(QPointF place) override;
    void stepBy(int right, int up) override;
    void goToEnd(bool last) override;

private:
    QRectF track() const;
    /// The ends of the thumb's way.
    std::pair<qreal, qreal> way() const;
    QPointF thumbPlace() const;
    QRect thumbRect() const;
    const QImage& picture();

    const EditorChannel* channel_ = &kAlphaChannel;
    double value_ = 0;
    GradientStops stops_;
    QColor thumb_;
    QImage picture_; ///< null when it has to be made anew
};

} // namespace tintra
