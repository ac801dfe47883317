#pragma once

#include "colour/Vision.h"
#include "colour/WashColor.h"
#include "state/Choices.h"
#include "ui/editor/EditorSpaces.h"

#include <QWidget>
#include <functional>

namespace tintra {

class ChannelTrack;
class ColourPlane;
class ColourWheel;
class Theme;

/// The plane with its hue track, or the wheel with the plane in its middle.
class EditorPicker final : public QWidget {
public:
    EditorPicker(Theme& theme, QWidget* parent);

    void setPicker(PickerStyle style);
    /// Hue in degrees, saturation and brightness in percent; `color` is the opaque colour there.
    void show(const Figures& hsb, const WashColor& color, Vision vision);
    /// After the theme has changed.
    void restyle();

    std::function<void(double saturation, double brightness)> planeChanged;
    std::function<void(double degrees)> hueChanged;
    std::function<void()> settled;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void place();

    Theme& theme_;
    PickerStyle style_ = PickerStyle::plane;
    ColourWheel* wheel_;
    ColourPlane* plane_;
    ChannelTrack* hue_;
};

} // namespace tintra
