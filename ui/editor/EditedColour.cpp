#include "ui/editor/EditedColour.h"

#include <cmath>

namespace tintra {
namespace {

/// Figures nearer than this share of their channel's range are the same figure.
constexpr double kSame = 1e-3;

bool sameLight(const WashColor& a, const WashColor& b) {
    return a.r == b.r && a.g == b.g && a.b == b.b;
}

bool sameFigures(const EditorSpaceRow& space, const Figures& a, const Figures& b) {
    for (std::size_t i = 0; i < space.channels.size(); ++i) {
        const auto& channel = space.channels[i];
        const auto range = channel.to - channel.from;
        auto apart = std::abs(a[i] - b[i]);
        if (channel.wraps) apart = std::min(apart, range - apart);
        if (apart > range * kSame) return false;
    }
    return true;
}

/// Whether hue is the first channel, counted as HSB counts it.
bool sharesHue(EditorSpace space) {
    return space == EditorSpace::hsb || space == EditorSpace::hsl;
}

} // namespace

WashColor EditedFigures::with(std::size_t channel, double value, double alpha) const {
    auto figures = figures_;
    figures[channel] = value;
    return space_->color(figures, alpha, profiles_);
}

void EditedFigures::show(const WashColor& color, Of swatch) {
    if (swatch == Of::sameSwatch && sameLight(color, color_)) return;
    auto figures = space_->figures(color, profiles_);
    if (space_->keepHidden)
        space_->keepHidden(figures, swatch == Of::sameSwatch ? figures_ : Figures{});
    figures_ = figures;
    color_ = color;
}

WashColor EditedFigures::set(std::size_t channel, double value, double alpha) {
    figures_[channel] = space_->channels[channel].fitted(value);
    return color_ = space_->color(figures_, alpha, profiles_);
}

void EditedFigures::settle() {
    // Many splits into inks print the same colour: the one that was entered stays.
    if (space_->value == EditorSpace::cmyk) return;
    auto figures = space_->figures(color_, profiles_);
    if (space_->keepHidden) space_->keepHidden(figures, figures_);
    if (!sameFigures(*space_, figures, figures_)) figures_ = figures;
}

void EditedFigures::keepHue(double degrees) {
    auto figures = figures_;
    figures[0] = degrees;
    auto own = space_->figures(color_, profiles_);
    if (!space_->keepHidden) return;
    space_->keepHidden(own, figures);
    if (own[0] == degrees) figures_[0] = degrees;
}

EditedColour::EditedColour(EditorSpace space, const EditorProfiles& profiles)
    : sliders_(editorSpace(space), profiles), picker_(editorSpace(EditorSpace::hsb), profiles) {}

void EditedColour::show(const WashColor& color, EditedFigures::Of swatch) {
    color_ = color;
    sliders_.show(color, swatch);
    picker_.show(color, swatch);
}

void EditedColour::setSpace(EditorSpace space, const EditorProfiles& profiles) {
    sliders_ = EditedFigures(editorSpace(space), profiles);
    sliders_.show(color_, EditedFigures::Of::anotherSwatch);
    if (sharesHue(space)) sliders_.keepHue(hsb()[0]);
}

WashColor EditedColour::setChannel(std::size_t channel, double value) {
    color_ = sliders_.set(channel, value, color_.a);
    picker_.show(color_, EditedFigures::Of::sameSwatch);
    if (sharesHue(sliders_.space().value)) picker_.keepHue(sliders_.figures()[0]);
    return color_;
}

WashColor EditedColour::setHue(double degrees) {
    color_ = picker_.set(0, degrees, color_.a);
    sliders_.show(color_, EditedFigures::Of::sameSwatch);
    if (sharesHue(sliders_.space().value)) sliders_.keepHue(hsb()[0]);
    return color_;
}

WashColor EditedColour::setPlane(double saturation, double brightness) {
    picker_.set(1, saturation, color_.a);
    color_ = picker_.set(2, brightness, color_.a);
    sliders_.show(color_, EditedFigures::Of::sameSwatch);
    return color_;
}

WashColor EditedColour::setAlpha(double percent) {
    color_.a = kAlphaChannel.fitted(percent) / 100;
    return color_;
}

void EditedColour::settle() {
    sliders_.settle();
}

} // namespace tintra
