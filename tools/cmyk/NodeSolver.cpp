#include "tools/cmyk/NodeSolver.h"

#include <algorithm>
#include <optional>

namespace tintra::cmyk {
namespace {

constexpr InkBounds kPrintable{{0, 0, 0, 0}, {1, 1, 1, 1}};

constexpr double kLow = -kCoverageMargin;
constexpr double kHigh = 1.0 + kCoverageMargin;

// In deep colours only black goes below zero: with the other inks negative as well, the answers of
// neighbouring nodes would cancel each other and differ wildly. In light colours it takes them all.
constexpr InkBounds kExtendedLight{{kLow, kLow, kLow, kLow}, {kHigh, kHigh, kHigh, kHigh}};
constexpr InkBounds kExtendedDeep{{0, 0, 0, kLow}, {kHigh, kHigh, kHigh, kHigh}};

// Wish for black from which a colour counts as deep.
constexpr double kDeepWish = 0.1;

// Difference of colour up to which a node is extended fully, and from which not at all.
constexpr double kFullyExtended = 3.0;
constexpr double kNotExtended = 6.0;

// Solves with the wish for black moved to what came out until nothing moves: the wish chooses
// among the inks that print the colour, and in the end costs no difference of colour.
Coverages settle(ColourProblem& problem, const InkBounds& bounds, Coverages coverages) {
    constexpr int kMostRounds = 30;
    constexpr double kStill = 1e-4;
    for (int round = 0; round < kMostRounds; ++round) {
        problem.setBlackWish(coverages[kBlack]);
        const Coverages next = solveBounded(problem, bounds, coverages).coverages;
        const bool isStill = largestDifference(next, coverages) < kStill;
        coverages = next;
        if (isStill) {
            break;
        }
    }
    return coverages;
}

} // namespace

Coverages NodeInks::blended() const {
    const double share =
        std::clamp((kNotExtended - colourError) / (kNotExtended - kFullyExtended), 0.0, 1.0);
    Coverages result{};
    for (std::size_t ink = 0; ink < kInkCount; ++ink) {
        result[ink] = bounded[ink] + share * (extended[ink] - bounded[ink]);
    }
    return result;
}

void NodeSolver::finish(ColourProblem& problem, double blackWish, const Coverages& extendedStart,
                        NodeInks& inks) const {
    inks.bounded = settle(problem, kPrintable, inks.bounded);
    inks.colourError = problem.colourError(inks.bounded);
    inks.extended = inks.bounded;
    if (inks.colourError < kNotExtended) {
        const InkBounds& bounds = blackWish > kDeepWish ? kExtendedDeep : kExtendedLight;
        inks.extended = settle(problem, bounds, extendedStart);
    }
}

NodeInks NodeSolver::solve(const Lab& target, double blackWish) const {
    ColourProblem problem(press_, target, blackWish);
    const std::array<Coverages, 4> starts{{{0.1, 0.1, 0.1, blackWish},
                                           {0.8, 0.8, 0.1, blackWish},
                                           {0.8, 0.1, 0.5, blackWish},
                                           {0.1, 0.8, 0.5, blackWish}}};
    std::optional<InkAnswer> best;
    for (const Coverages& start : starts) {
        const InkAnswer answer = solveBounded(problem, kPrintable, start);
        if (!best || answer.cost < best->cost) {
            best = answer;
        }
    }
    NodeInks inks;
    inks.bounded = best->coverages;
    finish(problem, blackWish, inks.bounded, inks);
    return inks;
}

NodeInks NodeSolver::refine(const Lab& target, double blackWish, const NodeInks& previous) const {
    ColourProblem problem(press_, target, blackWish);
    NodeInks inks = previous;
    finish(problem, blackWish, previous.extended, inks);
    return inks;
}

} // namespace tintra::cmyk
