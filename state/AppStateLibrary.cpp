#include "state/AppState.h"

namespace tintra {

void AppState::addPaletteLocation() {
    locations_.add();
}

void AppState::addPaletteLocation(const std::filesystem::path& folder) {
    locations_.add(folder);
}

void AppState::removePaletteLocation(const Uuid& id) {
    locations_.remove(id);
}

void AppState::rechoosePaletteLocation(const Uuid& id) {
    locations_.rechoose(id);
}

} // namespace tintra
