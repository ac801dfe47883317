#include "tools/cmyk/SeparationTable.h"

#include "tools/cmyk/BlackPoint.h"
#include "tools/cmyk/BlackWish.h"
#include "tools/cmyk/NodeSolver.h"
#include "tools/cmyk/ProfileStages.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace tintra::cmyk {
namespace {

constexpr int kCorrectionRounds = 3;

// The lightness curve bends at the black point, which is no round number: many samples keep the
// rounded corner small.
constexpr std::size_t kLightnessCurveSize = 1021;
constexpr std::size_t kColourCurveSize = 256;

// With this size the ends of 0..1 in the extended range fall on samples.
constexpr std::size_t kInkCurveSize = 511;

constexpr double kStoredRange = 1.0 + 2.0 * kCoverageMargin;

constexpr std::size_t kLabChannels = 3;

// The target moved by what the table prints differently from the model for the inks found so far.
Lab correctedTarget(const Lab& target, const NodeInks& inks, const PressModel& press,
                    const PressTable& table) {
    Coverages printable = inks.blended();
    for (double& coverage : printable) {
        coverage = std::clamp(coverage, 0.0, 1.0);
    }
    const Lab modelled = labFromXyz(press.print(printable).xyz);
    const Lab tabled = table.print(printable);
    return {target.l + modelled.l - tabled.l, target.a + modelled.a - tabled.a,
            target.b + modelled.b - tabled.b};
}

Coverages nodeInks(const Lab& target, double wish, const PressModel& press,
                   const PressTable& table) {
    const NodeSolver solver(press);
    NodeInks inks = solver.solve(target, wish);
    for (int round = 0; round < kCorrectionRounds; ++round) {
        inks = solver.refine(correctedTarget(target, inks, press, table), wish, inks);
    }
    return inks.blended();
}

// White is bare paper, exactly.
constexpr std::size_t kWhiteNode =
    SeparationGrid::kNodeCount - SeparationGrid::kSize * SeparationGrid::kSize +
    SeparationGrid::kNeutralNode * SeparationGrid::kSize + SeparationGrid::kNeutralNode;

} // namespace

SeparationTable::SeparationTable(const PressModel& press, const PressTable& table)
    : grid_(darkestNeutral(press).lightness), nodes_(SeparationGrid::kNodeCount) {
    const double blackLightness = grid_.node(0).l;
    for (std::size_t i = 0; i < nodes_.size(); ++i) {
        const Lab target = grid_.node(i);
        nodes_[i] = nodeInks(target, blackWish(target, blackLightness), press, table);
    }
    nodes_[kWhiteNode] = {};
}

LcmsPipeline SeparationTable::pipeline(const PressModel& press) const {
    const auto signedLab = [](double unit) { return unit * 255.0 - 128.0; };
    const std::array<CurveSamples, kLabChannels> labCurves{
        sampleCurve(kLightnessCurveSize,
                    [&](double unit) { return grid_.lightnessPosition(unit * 100.0); }),
        sampleCurve(kColourCurveSize,
                    [&](double unit) { return SeparationGrid::aPosition(signedLab(unit)); }),
        sampleCurve(kColourCurveSize,
                    [&](double unit) { return SeparationGrid::bPosition(signedLab(unit)); })};
    std::array<CurveSamples, kInkCount> inkCurves;
    for (std::size_t ink = 0; ink < kInkCount; ++ink) {
        inkCurves[ink] = sampleCurve(kInkCurveSize, [&](double unit) {
            return press.curve(ink).tone(unit * kStoredRange - kCoverageMargin).value;
        });
    }
    std::vector<std::uint16_t> stored;
    stored.reserve(nodes_.size() * kInkCount);
    for (const Coverages& node : nodes_) {
        for (const double coverage : node) {
            stored.push_back(encodeUnit((coverage + kCoverageMargin) / kStoredRange));
        }
    }
    LcmsPipeline result = makePipeline(kLabChannels, kInkCount);
    appendCurves(*result, labCurves);
    appendTable(*result, {SeparationGrid::kSize, kLabChannels, kInkCount}, stored);
    appendCurves(*result, inkCurves);
    return result;
}

} // namespace tintra::cmyk
