#pragma once

#include "colour/Oklab.h"

#include <cstddef>
#include <span>
#include <string_view>

namespace tintra {

/// OKLab colours, a component an array, all of one length.
struct OklabColumns {
    std::span<const double> L, a, b;
};

/// The place of the colour nearest to `target` by dL*dL + da*da + db*db, summed from the left; the
/// first among equally near ones, and 0 when no distance is a finite number. What every way to
/// scan answers, to the last tie.
using NameScan = std::size_t (*)(const OklabColumns& colours, const Oklab& target);

/// A way to scan and what it needs of the processor.
struct NameScanVariant {
    std::string_view title;
    NameScan scan;
};

/// The ways that this processor can go, the fastest first; never empty.
std::span<const NameScanVariant> nameScans();

} // namespace tintra
