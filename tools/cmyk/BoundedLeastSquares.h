#pragma once

#include "tools/cmyk/Inks.h"

#include <array>
#include <cstddef>

namespace tintra::cmyk {

/// Residuals at a point and their change by each coverage. Unused residuals are zero.
struct Residuals {
    static constexpr std::size_t kCount = 5;

    std::array<double, kCount> value{};
    std::array<std::array<double, kInkCount>, kCount> byInk{};
};

/// A question to which some coverages are the answer.
class InkProblem {
public:
    InkProblem() = default;
    InkProblem(const InkProblem&) = delete;
    InkProblem& operator=(const InkProblem&) = delete;
    virtual ~InkProblem() = default;

    [[nodiscard]] virtual Residuals residuals(const Coverages& coverages) const = 0;
};

/// The range each coverage may take; equal ends hold an ink fixed.
struct InkBounds {
    Coverages lowest{};
    Coverages highest{};
};

/// A point and the sum of the squares of the residuals there.
struct InkAnswer {
    Coverages coverages{};
    double cost = 0;
};

/// The largest absolute difference of the coverages of one ink.
[[nodiscard]] double largestDifference(const Coverages& left, const Coverages& right);

/// The least squares answer near `start` (moved into the bounds first), by the method of Levenberg
/// and Marquardt on the inks that are not held by a bound. Takes a bounded number of steps.
[[nodiscard]] InkAnswer solveBounded(const InkProblem& problem, const InkBounds& bounds,
                                     const Coverages& start);

} // namespace tintra::cmyk
