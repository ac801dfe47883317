#pragma once

#include "tools/cmyk/LcmsHandles.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace tintra::cmyk {

/// Samples of a curve over 0..1, both ends included, in units of 1/65535.
using CurveSamples = std::vector<std::uint16_t>;

/// 0..1 in units of 1/65535; values beyond the ends give the ends.
[[nodiscard]] std::uint16_t encodeUnit(double value);

/// Samples `function` (double to double, both 0..1) at `count` even steps; count at least 2.
template <typename Function>
CurveSamples sampleCurve(std::size_t count, Function function) {
    CurveSamples samples(count);
    for (std::size_t i = 0; i < count; ++i) {
        samples[i] = encodeUnit(function(static_cast<double>(i) / static_cast<double>(count - 1)));
    }
    return samples;
}

/// A pipeline without stages. Throws std::runtime_error, as do the functions below.
[[nodiscard]] LcmsPipeline makePipeline(std::size_t inputs, std::size_t outputs);

/// Adds one sampled curve for each channel at the end.
void appendCurves(cmsPipeline& pipeline, std::span<const CurveSamples> curves);

/// Adds curves that change nothing: the ICC table types want them beside the CIELAB channels.
void appendStraightCurves(cmsPipeline& pipeline, std::size_t channels);

/// A table with `size` nodes along each input.
struct TableShape {
    std::size_t size;
    std::size_t inputs;
    std::size_t outputs;
};

/// Adds a table; the last input varies fastest. `nodes` holds size^inputs * outputs values.
void appendTable(cmsPipeline& pipeline, const TableShape& shape,
                 std::span<const std::uint16_t> nodes);

} // namespace tintra::cmyk
