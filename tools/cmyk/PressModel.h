#pragma once

#include "tools/cmyk/Colour.h"
#include "tools/cmyk/InkCurve.h"
#include "tools/cmyk/Inks.h"

#include <array>
#include <cstddef>

namespace tintra::cmyk {

/// A printed colour, relative to the paper (paper = D50 white), and its change by each coverage.
struct PrintedColour {
    Xyz xyz{};
    std::array<Xyz, kInkCount> byInk{};
};

/// What inks look like on paper: the Neugebauer equations with Demichel's weights and the
/// Yule-Nielsen factor, over the solids of PressFacts.h. Immutable.
class PressModel {
public:
    PressModel();

    /// Coverages outside 0..1 give the smooth continuation of the equations.
    [[nodiscard]] PrintedColour print(const Coverages& coverages) const;

    [[nodiscard]] const InkCurve& curve(std::size_t ink) const { return curves_[ink]; }

    /// The sum of the four tones, and its change by each coverage.
    struct InkSum {
        double tones = 0;
        std::array<double, kInkCount> byInk{};
    };
    [[nodiscard]] InkSum inkSum(const Coverages& coverages) const;

private:
    static constexpr std::size_t kPrimaryCount = 16;
    using Primaries = std::array<Vec3, kPrimaryCount>;

    static Primaries primaryReflectances();
    static std::array<InkCurve, kInkCount> inkCurves(const Primaries& reflectances);

    // n-th roots of the reflectances against paper; bit i of the index says that ink i is there.
    Primaries roots_{};
    std::array<InkCurve, kInkCount> curves_;
};

} // namespace tintra::cmyk
