#pragma once

#include "tools/cmyk/LcmsHandles.h"
#include "tools/cmyk/PressModel.h"
#include "tools/cmyk/PressTable.h"
#include "tools/cmyk/SeparationGrid.h"

#include <vector>

namespace tintra::cmyk {

/// The colour-to-ink half of the profile: the inks of every node of the CIELAB grid.
class SeparationTable {
public:
    /// Solves all nodes, then corrects them for what `table` gives differently from the model.
    SeparationTable(const PressModel& press, const PressTable& table);

    /// From encoded CIELAB to tones, as it goes into the profile. Throws std::runtime_error when
    /// Little CMS has no memory left.
    [[nodiscard]] LcmsPipeline pipeline(const PressModel& press) const;

private:
    SeparationGrid grid_;
    std::vector<Coverages> nodes_;
};

} // namespace tintra::cmyk
