// What acts on the colours of the Contrast window.

#include "ui/actions/ActionRows.h"

namespace tintra::actionRows {

std::span<const ActionRow> ofContrast() {
    return {};
}

} // namespace tintra::actionRows
