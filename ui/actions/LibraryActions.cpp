// What acts on the palettes of the Library.

#include "ui/actions/ActionRows.h"

namespace tintra::actionRows {

std::span<const ActionRow> ofLibrary() {
    return {};
}

} // namespace tintra::actionRows
