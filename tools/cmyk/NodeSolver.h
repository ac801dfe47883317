#pragma once

#include "tools/cmyk/ColourProblem.h"
#include "tools/cmyk/PressModel.h"

namespace tintra::cmyk {

/// How far the table of inks goes beyond 0..1. Between a node inside the gamut and one outside,
/// the interpolated inks can only be right if the outer node carries the equations on; the
/// profile's output curves cut the result off.
inline constexpr double kCoverageMargin = 1.0 / 3.0;

/// The inks of one node.
struct NodeInks {
    /// The best answer within 0..1.
    Coverages bounded{};
    /// The answer within the wider range; the bounded one for colours far outside the gamut.
    Coverages extended{};
    /// Difference of colour that remains with the bounded answer.
    double colourError = 0;

    /// What goes into the table: the extended answer close to the gamut, the bounded one far away.
    [[nodiscard]] Coverages blended() const;
};

/// Finds the inks of one colour.
class NodeSolver {
public:
    /// `press` must outlive this object.
    explicit NodeSolver(const PressModel& press) : press_(press) {}

    /// Tries several starts; `blackWish` is the coverage of black to aim at.
    [[nodiscard]] NodeInks solve(const Lab& target, double blackWish) const;

    /// Solves again for a target that moved a little, keeping the coverage of black.
    [[nodiscard]] NodeInks refine(const Lab& target, double blackWish,
                                  const NodeInks& previous) const;

private:
    void finish(ColourProblem& problem, double blackWish, const Coverages& extendedStart,
                NodeInks& inks) const;

    const PressModel& press_;
};

} // namespace tintra::cmyk
