#pragma once

namespace tintra {

/// Makes an accessible radio button of each choice of every Segmented. Cheap to call again.
void installSegmentedAccessibility();

} // namespace tintra
