#pragma once

#include "tools/cmyk/BoundedLeastSquares.h"
#include "tools/cmyk/Colour.h"
#include "tools/cmyk/PressModel.h"

namespace tintra::cmyk {

/// Which inks print a colour, with a wished coverage of black and the ink limit. Differences of
/// colour are those of OKLab, about in CIELAB units; hue counts more than lightness and that more
/// than chroma, so that a colour beyond the gamut keeps its hue.
class ColourProblem : public InkProblem {
public:
    /// `press` must outlive this object.
    ColourProblem(const PressModel& press, const Lab& target, double blackWish);

    void setBlackWish(double coverage) { blackWish_ = coverage; }

    [[nodiscard]] Residuals residuals(const Coverages& coverages) const override;

    /// The difference of colour alone.
    [[nodiscard]] double colourError(const Coverages& coverages) const;

private:
    void addColour(Residuals& result, const Coverages& coverages) const;

    const PressModel& press_;
    Vec3 target_;
    // Unit vector of the target's hue in the a b plane.
    double hueA_ = 1;
    double hueB_ = 0;
    double blackWish_;
};

} // namespace tintra::cmyk
