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
    /// Makes the plane lower where the room is short by so much, px, down to its least height;
    /// the wheel stays as it is.
    void setLack(int lack);
    /// What the plane has given up, px: it keeps a least height.
    int lack() const;

    std::function<void(double saturation, double brightness)> planeChanged;
    std::function<void(double degrees)> hueChanged;
    std::function<void()> settled;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void place();
    int planeHeight() const;

    Theme& theme_;
    PickerStyle style_ = PickerStyle::plane;
    ColourWheel* wheel_;
    ColourPlane* plane_;
    ChannelTrack* hue_;
    int lack_ = 0;
};

} // namespace tintra
