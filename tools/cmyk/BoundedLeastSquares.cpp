#include "tools/cmyk/BoundedLeastSquares.h"

#include <algorithm>
#include <cmath>

namespace tintra::cmyk {
namespace {

constexpr int kMostSteps = 60;
constexpr double kFirstDamping = 1e-3;
constexpr double kLeastDamping = 1e-9;
constexpr double kMostDamping = 1e7;
constexpr double kStillStep = 1e-7;
constexpr double kSmallestDiagonal = 1e-9;

using InkMatrix = std::array<std::array<double, kInkCount>, kInkCount>;

struct NormalEquations {
    InkMatrix matrix{};
    Coverages gradient{};
};

double costOf(const Residuals& residuals) {
    double cost = 0;
    for (const double value : residuals.value) {
        cost += value * value;
    }
    return cost;
}

NormalEquations normalEquations(const Residuals& residuals) {
    NormalEquations result;
    for (std::size_t r = 0; r < Residuals::kCount; ++r) {
        const auto& slope = residuals.byInk[r];
        for (std::size_t i = 0; i < kInkCount; ++i) {
            result.gradient[i] += slope[i] * residuals.value[r];
            for (std::size_t j = 0; j < kInkCount; ++j) {
                result.matrix[i][j] += slope[i] * slope[j];
            }
        }
    }
    return result;
}

// Takes the inks out of the equations that sit on a bound and are pushed against it.
void holdInksOnBounds(NormalEquations& equations, const Coverages& at, const InkBounds& bounds) {
    for (std::size_t ink = 0; ink < kInkCount; ++ink) {
        const double gradient = equations.gradient[ink];
        const bool isHeld = (at[ink] <= bounds.lowest[ink] && gradient >= 0) ||
                            (at[ink] >= bounds.highest[ink] && gradient <= 0);
        if (isHeld) {
            equations.matrix[ink] = {};
            for (auto& row : equations.matrix) {
                row[ink] = 0;
            }
            equations.matrix[ink][ink] = 1;
            equations.gradient[ink] = 0;
        }
    }
}

// Solves the damped equations by Cholesky's method; the damping makes them positive definite.
Coverages dampedStep(const NormalEquations& equations, double damping) {
    InkMatrix lower = equations.matrix;
    Coverages step{};
    for (std::size_t i = 0; i < kInkCount; ++i) {
        lower[i][i] += damping * std::max(lower[i][i], kSmallestDiagonal) + kSmallestDiagonal;
        double right = -equations.gradient[i];
        for (std::size_t j = 0; j <= i; ++j) {
            for (std::size_t k = 0; k < j; ++k) {
                lower[i][j] -= lower[i][k] * lower[j][k];
            }
            if (j < i) {
                lower[i][j] /= lower[j][j];
                right -= lower[i][j] * step[j];
            }
        }
        lower[i][i] = std::sqrt(std::max(lower[i][i], kSmallestDiagonal * kSmallestDiagonal));
        step[i] = right / lower[i][i];
    }
    for (std::size_t i = kInkCount; i-- > 0;) {
        for (std::size_t j = i + 1; j < kInkCount; ++j) {
            step[i] -= lower[j][i] * step[j];
        }
        step[i] /= lower[i][i];
    }
    return step;
}

Coverages within(const InkBounds& bounds, Coverages coverages) {
    for (std::size_t ink = 0; ink < kInkCount; ++ink) {
        coverages[ink] = std::clamp(coverages[ink], bounds.lowest[ink], bounds.highest[ink]);
    }
    return coverages;
}

Coverages moved(const Coverages& from, const Coverages& step) {
    Coverages result = from;
    for (std::size_t ink = 0; ink < kInkCount; ++ink) {
        result[ink] += step[ink];
    }
    return result;
}

} // namespace

double largestDifference(const Coverages& left, const Coverages& right) {
    double largest = 0;
    for (std::size_t ink = 0; ink < kInkCount; ++ink) {
        largest = std::max(largest, std::abs(left[ink] - right[ink]));
    }
    return largest;
}

InkAnswer solveBounded(const InkProblem& problem, const InkBounds& bounds, const Coverages& start) {
    InkAnswer best{within(bounds, start), 0};
    Residuals residuals = problem.residuals(best.coverages);
    best.cost = costOf(residuals);
    double damping = kFirstDamping;
    for (int step = 0; step < kMostSteps && damping < kMostDamping; ++step) {
        NormalEquations equations = normalEquations(residuals);
        holdInksOnBounds(equations, best.coverages, bounds);
        const Coverages next =
            within(bounds, moved(best.coverages, dampedStep(equations, damping)));
        const double change = largestDifference(next, best.coverages);
        if (change < kStillStep) {
            break;
        }
        const Residuals nextResiduals = problem.residuals(next);
        const double nextCost = costOf(nextResiduals);
        if (nextCost < best.cost) {
            best = {next, nextCost};
            residuals = nextResiduals;
            damping = std::max(damping * 0.1, kLeastDamping);
        } else {
            damping *= 10;
        }
    }
    return best;
}

} // namespace tintra::cmyk
