// What acts on the columns and wells of the Bench.

#include "ui/actions/ActionRows.h"

namespace tintra::actionRows {

std::span<const ActionRow> ofBench() {
    return {};
}

} // namespace tintra::actionRows
