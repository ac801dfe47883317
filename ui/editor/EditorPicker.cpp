#include "ui/editor/EditorPicker.h"

#include "colour/Hsb.h"
#include "ui/editor/ChannelTrack.h"
#include "ui/editor/ColourPlane.h"
#include "ui/editor/ColourWheel.h"
#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Theme.h"

#include <algorithm>

namespace tintra {
namespace {

constexpr int kPlaneWidth = 280, kPlaneHeight = 216, kLeastHeight = 120;
constexpr int kHue = 20;  ///< from the plane's lower edge down to half of the hue track and beyond
constexpr int kBelow = 8; ///< what a thumb takes beneath the lowest picture

} // namespace

EditorPicker::EditorPicker(Theme& theme, QWidget* parent)
    : QWidget(parent), theme_(theme), wheel_(new ColourWheel(theme, this)),
      plane_(new ColourPlane(theme, this)), hue_(new ChannelTrack(theme, this)) {
    hue_->setChannel(editorSpace(EditorSpace::hsb).channels[0]);
    plane_->changed = [this](double saturation, double brightness) {
        if (planeChanged) planeChanged(saturation, brightness);
    };
    wheel_->changed = hue_->changed = [this](double degrees) {
        if (hueChanged) hueChanged(degrees);
    };
    plane_->settled = wheel_->settled = hue_->settled = [this] {
        if (settled) settled();
    };
    setPicker(style_);
}

void EditorPicker::setPicker(PickerStyle style) {
    style_ = style;
    wheel_->setVisible(style == PickerStyle::wheel);
    hue_->setVisible(style == PickerStyle::plane);
    restyle();
}

int EditorPicker::planeHeight() const {
    if (style_ == PickerStyle::wheel) return theme_.scaled(kPlaneHeight);
    return std::max(theme_.scaled(kPlaneHeight) - lack_, theme_.scaled(kLeastHeight));
}

int EditorPicker::lack() const {
    return theme_.scaled(kPlaneHeight) - planeHeight();
}

void EditorPicker::setLack(int lack) {
    if (lack == lack_) return;
    lack_ = lack;
    restyle();
}

void EditorPicker::restyle() {
    const auto halo = theme_.scaled(PickerControl::kHalo);
    auto height = halo + planeHeight() + theme_.scaled(kBelow);
    if (style_ == PickerStyle::plane) height += theme_.scaled(kHue) + theme_.scaled(4);
    setFixedSize(theme_.scaled(kPlaneWidth) + 2 * halo, height);
    place();
    update();
}

void EditorPicker::resizeEvent(QResizeEvent*) {
    place();
}

void EditorPicker::place() {
    const auto halo = theme_.scaled(PickerControl::kHalo);
    const QRect area(halo, halo, theme_.scaled(kPlaneWidth), planeHeight());
    if (style_ == PickerStyle::plane) {
        plane_->clearMask();
        plane_->setGeometry(area.adjusted(-halo, -halo, halo, halo));
        const auto side = theme_.scaled(ChannelTrack::kSide);
        const auto high = theme_.scaled(ChannelTrack::kHeight);
        // The track is 12 high in a widget of 28, and begins 12 below the plane.
        hue_->setGeometry(area.left() - side, area.bottom() + 1 + theme_.scaled(4),
                          area.width() + 2 * side, high);
        return;
    }
    const auto whole = theme_.scaled(ColourWheel::kDiameter) + 2 * halo;
    const auto square = theme_.scaled(ColourWheel::kSquare) + 2 * halo;
    const auto within = [&](int side) {
        return QRect(area.center().x() - side / 2 + 1, area.center().y() - side / 2 + 1, side,
                     side);
    };
    wheel_->setGeometry(within(whole));
    plane_->setGeometry(within(square));
    // The ring is to be had where the corners round the square would cover it.
    const auto free = theme_.scaled(ColourWheel::kDiameter) - theme_.scaled(2 * 18);
    const auto off = (square - free) / 2;
    plane_->setMask(QRegion(off, off, free, free, QRegion::Ellipse));
}

void EditorPicker::show(const Figures& hsb, const WashColor& color, Vision vision) {
    const auto pure = WashColor::fromRgb(rgbFromHsb({hsb[0] / 360, 1, 1}), 1);
    const auto ofHue = toQColor(simulate(vision, pure));
    plane_->show(hsb[0], hsb[1], hsb[2], toQColor(simulate(vision, color)), vision);
    wheel_->show(hsb[0], ofHue, vision);
    hue_->setColours(hueStops(vision), ofHue);
    hue_->setValue(hsb[0]);
}

} // namespace tintra
