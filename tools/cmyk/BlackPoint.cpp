#include "tools/cmyk/BlackPoint.h"

#include "tools/cmyk/BoundedLeastSquares.h"

namespace tintra::cmyk {
namespace {

// Zero when the paper-relative reflectance is alike in all three channels and the ink sum is at
// the limit.
class DarkNeutral : public InkProblem {
public:
    explicit DarkNeutral(const PressModel& press) : press_(press) {}

    [[nodiscard]] Residuals residuals(const Coverages& coverages) const override {
        constexpr double kReflectanceWeight = 100;
        const PrintedColour colour = press_.print(coverages);
        const PressModel::InkSum sum = press_.inkSum(coverages);
        const auto imbalance = [](const Xyz& xyz, std::size_t channel) {
            return kReflectanceWeight * (xyz[channel] / kD50[channel] - xyz[1] / kD50[1]);
        };
        Residuals result;
        result.value = {imbalance(colour.xyz, 0), imbalance(colour.xyz, 2), sum.tones - kInkLimit};
        for (std::size_t ink = 0; ink < kInkCount; ++ink) {
            result.byInk[0][ink] = imbalance(colour.byInk[ink], 0);
            result.byInk[1][ink] = imbalance(colour.byInk[ink], 2);
            result.byInk[2][ink] = sum.byInk[ink];
        }
        return result;
    }

private:
    const PressModel& press_;
};

} // namespace

BlackPoint darkestNeutral(const PressModel& press) {
    const DarkNeutral problem(press);
    const InkBounds fullBlack{{0, 0, 0, 1}, {1, 1, 1, 1}};
    const InkAnswer answer = solveBounded(problem, fullBlack, {0.7, 0.7, 0.7, 1});
    return {answer.coverages, labFromXyz(press.print(answer.coverages).xyz).l};
}

} // namespace tintra::cmyk
