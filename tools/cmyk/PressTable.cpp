#include "tools/cmyk/PressTable.h"

#include "tools/cmyk/ProfileStages.h"

#include <algorithm>

namespace tintra::cmyk {
namespace {

constexpr std::size_t kGridSize = 9;
constexpr std::size_t kNodeCount = kGridSize * kGridSize * kGridSize * kGridSize;
constexpr std::size_t kCurveSize = 256;
constexpr std::size_t kLabChannels = 3;

Coverages nodeCoverages(std::size_t index) {
    Coverages result{};
    for (std::size_t ink = kInkCount; ink-- > 0;) {
        result[ink] = static_cast<double>(index % kGridSize) / static_cast<double>(kGridSize - 1);
        index /= kGridSize;
    }
    return result;
}

std::vector<std::uint16_t> tableNodes(const PressModel& press) {
    std::vector<std::uint16_t> nodes;
    nodes.reserve(kNodeCount * kLabChannels);
    for (std::size_t index = 0; index < kNodeCount; ++index) {
        const Lab lab = labFromXyz(press.print(nodeCoverages(index)).xyz);
        nodes.push_back(encodeUnit(lab.l / 100.0));
        nodes.push_back(encodeUnit((lab.a + 128.0) / 255.0));
        nodes.push_back(encodeUnit((lab.b + 128.0) / 255.0));
    }
    return nodes;
}

LcmsPipeline tableOnly(const std::vector<std::uint16_t>& nodes) {
    LcmsPipeline result = makePipeline(kInkCount, kLabChannels);
    appendTable(*result, {kGridSize, kInkCount, kLabChannels}, nodes);
    return result;
}

} // namespace

PressTable::PressTable(const PressModel& press)
    : nodes_(tableNodes(press)), table_(tableOnly(nodes_)) {}

Lab PressTable::print(const Coverages& coverages) const {
    std::array<float, kInkCount> input{};
    std::array<float, kLabChannels> output{};
    for (std::size_t ink = 0; ink < kInkCount; ++ink) {
        input[ink] = static_cast<float>(std::clamp(coverages[ink], 0.0, 1.0));
    }
    cmsPipelineEvalFloat(input.data(), output.data(), table_.get());
    return {output[0] * 100.0, output[1] * 255.0 - 128.0, output[2] * 255.0 - 128.0};
}

LcmsPipeline PressTable::pipeline(const PressModel& press) const {
    std::array<CurveSamples, kInkCount> curves;
    for (std::size_t ink = 0; ink < kInkCount; ++ink) {
        curves[ink] =
            sampleCurve(kCurveSize, [&](double tone) { return press.curve(ink).coverage(tone); });
    }
    LcmsPipeline result = makePipeline(kInkCount, kLabChannels);
    appendCurves(*result, curves);
    appendTable(*result, {kGridSize, kInkCount, kLabChannels}, nodes_);
    appendStraightCurves(*result, kLabChannels);
    return result;
}

} // namespace tintra::cmyk
