#include "tools/cmyk/ProfileStages.h"

#include <algorithm>
#include <cmath>

namespace tintra::cmyk {
namespace {

// Little CMS has linked the stage in even when it refuses the result: the pipeline frees it.
void append(cmsPipeline& pipeline, cmsStage* stage, const char* step) {
    require(stage != nullptr, step);
    require(cmsPipelineInsertStage(&pipeline, cmsAT_END, stage) != 0, step);
}

} // namespace

std::uint16_t encodeUnit(double value) {
    constexpr double kTop = 65535.0;
    return static_cast<std::uint16_t>(std::lround(std::clamp(value, 0.0, 1.0) * kTop));
}

LcmsPipeline makePipeline(std::size_t inputs, std::size_t outputs) {
    LcmsPipeline pipeline(cmsPipelineAlloc(nullptr, static_cast<cmsUInt32Number>(inputs),
                                           static_cast<cmsUInt32Number>(outputs)),
                          &cmsPipelineFree);
    require(pipeline != nullptr, "make a pipeline");
    return pipeline;
}

void appendCurves(cmsPipeline& pipeline, std::span<const CurveSamples> curves) {
    std::vector<LcmsCurve> owned;
    std::vector<cmsToneCurve*> plain;
    for (const CurveSamples& samples : curves) {
        owned.emplace_back(
            cmsBuildTabulatedToneCurve16(nullptr, static_cast<cmsUInt32Number>(samples.size()),
                                         samples.data()),
            &cmsFreeToneCurve);
        require(owned.back() != nullptr, "make a curve");
        plain.push_back(owned.back().get());
    }
    append(
        pipeline,
        cmsStageAllocToneCurves(nullptr, static_cast<cmsUInt32Number>(plain.size()), plain.data()),
        "add curves");
}

void appendStraightCurves(cmsPipeline& pipeline, std::size_t channels) {
    append(pipeline,
           cmsStageAllocToneCurves(nullptr, static_cast<cmsUInt32Number>(channels), nullptr),
           "add straight curves");
}

void appendTable(cmsPipeline& pipeline, const TableShape& shape,
                 std::span<const std::uint16_t> nodes) {
    append(pipeline,
           cmsStageAllocCLut16bit(nullptr, static_cast<cmsUInt32Number>(shape.size),
                                  static_cast<cmsUInt32Number>(shape.inputs),
                                  static_cast<cmsUInt32Number>(shape.outputs), nodes.data()),
           "add a table");
}

} // namespace tintra::cmyk
