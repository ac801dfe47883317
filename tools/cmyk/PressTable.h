#pragma once

#include "tools/cmyk/Colour.h"
#include "tools/cmyk/LcmsHandles.h"
#include "tools/cmyk/PressModel.h"

#include <cstdint>
#include <vector>

namespace tintra::cmyk {

/// The ink-to-colour half of the profile: the press model on a grid of coverages, read with Little
/// CMS's own interpolation.
class PressTable {
public:
    /// Throws std::runtime_error when Little CMS has no memory left.
    explicit PressTable(const PressModel& press);

    /// The colour the table gives for coverages; outside 0..1 the nearer end is taken.
    [[nodiscard]] Lab print(const Coverages& coverages) const;

    /// From tones to encoded CIELAB, as it goes into the profile.
    [[nodiscard]] LcmsPipeline pipeline(const PressModel& press) const;

private:
    std::vector<std::uint16_t> nodes_;
    LcmsPipeline table_;
};

} // namespace tintra::cmyk
