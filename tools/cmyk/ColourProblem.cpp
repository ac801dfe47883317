#include "tools/cmyk/ColourProblem.h"

#include <cmath>

namespace tintra::cmyk {
namespace {

// OKLab is scaled to about the size of CIELAB, then weighted.
constexpr double kLightnessWeight = 100.0 * 1.0;
constexpr double kChromaWeight = 300.0 * 0.7;
constexpr double kHueWeight = 300.0 * 2.5;

constexpr double kBlackWeight = 3.0;
constexpr double kInkLimitWeight = 60.0;

// Below this chroma a target has no hue worth the name.
constexpr double kLeastChroma = 1e-4;

} // namespace

ColourProblem::ColourProblem(const PressModel& press, const Lab& target, double blackWish)
    : press_(press), target_(okLabFromXyz(xyzFromLab(target)).value), blackWish_(blackWish) {
    const double chroma = std::sqrt(target_[1] * target_[1] + target_[2] * target_[2]);
    if (chroma > kLeastChroma) {
        hueA_ = target_[1] / chroma;
        hueB_ = target_[2] / chroma;
    }
}

void ColourProblem::addColour(Residuals& result, const Coverages& coverages) const {
    const auto weighted = [this](const Vec3& d) {
        return Vec3{kLightnessWeight * d[0], kChromaWeight * (hueA_ * d[1] + hueB_ * d[2]),
                    kHueWeight * (hueA_ * d[2] - hueB_ * d[1])};
    };
    const PrintedColour printed = press_.print(coverages);
    const OkLabSlope colour = okLabFromXyz(printed.xyz);
    const Vec3& value = colour.value;
    const Vec3 difference =
        weighted({value[0] - target_[0], value[1] - target_[1], value[2] - target_[2]});
    for (std::size_t i = 0; i < 3; ++i) {
        result.value[i] = difference[i];
    }
    for (std::size_t ink = 0; ink < kInkCount; ++ink) {
        Vec3 change{};
        for (std::size_t i = 0; i < 3; ++i) {
            for (std::size_t j = 0; j < 3; ++j) {
                change[i] += colour.byXyz[i][j] * printed.byInk[ink][j];
            }
        }
        const Vec3 slope = weighted(change);
        for (std::size_t i = 0; i < 3; ++i) {
            result.byInk[i][ink] = slope[i];
        }
    }
}

Residuals ColourProblem::residuals(const Coverages& coverages) const {
    Residuals result;
    addColour(result, coverages);
    result.value[3] = kBlackWeight * (coverages[kBlack] - blackWish_);
    result.byInk[3][kBlack] = kBlackWeight;
    const PressModel::InkSum sum = press_.inkSum(coverages);
    if (sum.tones > kInkLimit) {
        result.value[4] = kInkLimitWeight * (sum.tones - kInkLimit);
        for (std::size_t ink = 0; ink < kInkCount; ++ink) {
            result.byInk[4][ink] = kInkLimitWeight * sum.byInk[ink];
        }
    }
    return result;
}

double ColourProblem::colourError(const Coverages& coverages) const {
    Residuals colour;
    addColour(colour, coverages);
    const auto& value = colour.value;
    return std::sqrt(value[0] * value[0] + value[1] * value[1] + value[2] * value[2]);
}

} // namespace tintra::cmyk
