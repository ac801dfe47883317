#pragma once

#include "ui/editor/EditorSpaces.h"

namespace tintra {

/// The figures of a colour in one space while it is edited. What was entered stands for as long as
/// the colour is the one it gave, so that inks are not split anew and a grey keeps its hue.
class EditedFigures {
public:
    EditedFigures(const EditorSpaceRow& space, const EditorProfiles& profiles)
        : space_(&space), profiles_(profiles) {}

    const EditorSpaceRow& space() const { return *space_; }
    const Figures& figures() const { return figures_; }
    /// What the colour would be with another figure in one channel.
    WashColor with(std::size_t channel, double value, double alpha) const;

    /// Takes a colour; `Figures` of before are gone when it is another swatch's.
    enum class Of { sameSwatch, anotherSwatch };
    void show(const WashColor& color, Of swatch);
    /// Another figure in one channel; answers the colour.
    WashColor set(std::size_t channel, double value, double alpha);
    /// Takes the figures of the colour that came out, where the space names more than there is.
    void settle();
    /// A hue for a colour that has none of its own.
    void keepHue(double degrees);

private:
    const EditorSpaceRow* space_;
    EditorProfiles profiles_;
    Figures figures_{};
    WashColor color_; ///< of the figures; its alpha plays no part
};

/// The colour in the editor: its figures for the sliders, and hue, saturation and brightness for
/// the plane and the wheel. The two agree about the hue of a grey. Knows no widgets.
class EditedColour {
public:
    EditedColour(EditorSpace space, const EditorProfiles& profiles);

    void show(const WashColor& color, EditedFigures::Of swatch);
    /// Begins with the figures of the colour in another space or under other profiles.
    void setSpace(EditorSpace space, const EditorProfiles& profiles);

    const WashColor& color() const { return color_; }
    const EditedFigures& sliders() const { return sliders_; }
    /// Hue in degrees, saturation and brightness in percent.
    const Figures& hsb() const { return picker_.figures(); }

    // Each answers the colour that comes of it.

    WashColor setChannel(std::size_t channel, double value);
    WashColor setHue(double degrees);
    WashColor setPlane(double saturation, double brightness);
    WashColor setAlpha(double percent);
    void settle();

private:
    EditedFigures sliders_, picker_;
    WashColor color_;
};

} // namespace tintra
