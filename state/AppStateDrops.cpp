#include "palettes/PastedText.h"
#include "state/AppState.h"
#include "state/NoticeTexts.h"
#include "state/SwatchIdentity.h"

namespace tintra {

std::optional<std::size_t> AppState::ownSwatch(const Drag& drag) const {
    const auto* swatch = std::get_if<DragOfSwatch>(&drag.source);
    if (!swatch || swatch->origin.windowID != id_) return std::nullopt;
    return indexOf(swatch->origin.swatchID);
}

std::optional<std::string> AppState::refusal(const Drag& of, bool moving) const {
    if (ownSwatch(of)) return std::nullopt;
    if (moving && !std::holds_alternative<DragOfSwatch>(of.source))
        return std::string(kMoveRefusalText);
    if (tintra::indexOf(of.color, swatches())) return alreadyInPaletteText(of.color);
    if (swatches().size() >= kPaletteCapacity) return paletteFullText(swatches().size());
    return std::nullopt;
}

bool AppState::receive(const Drag& drag, std::size_t at, bool moving) {
    if (const auto from = ownSwatch(drag)) {
        moveSwatch(*from, at > *from ? at - 1 : at);
        return true;
    }
    const auto refused = refusal(drag, moving);
    if (!refused) {
        insertSwatch(freshSwatch(drag.color, drag.name), at);
        return true;
    }
    if (refused == kMoveRefusalText)
        explainMoveRefusal();
    else if (const auto there = tintra::indexOf(drag.color, swatches()))
        selectDuplicate(*there, drag.color);
    else
        toast(*refused, kBriefly);
    return false;
}

void AppState::explainMoveRefusal() {
    toast(std::string(kMoveRefusalText), kForExplaining);
}

void AppState::release(const Uuid& swatch) {
    if (const auto at = indexOf(swatch)) removeSwatch(*at);
}

std::size_t AppState::receiveText(std::string_view text) {
    const auto found = coloursIn(text);
    receiveSwatches(found);
    return found.size();
}

void AppState::receiveSwatches(std::span<const PaletteFile::Swatch> found) {
    if (found.size() == 1) {
        addToPalette(found[0].color, Duplicates::refuse, found[0].name);
        return;
    }
    std::vector<WashColor> colours;
    std::vector<std::optional<std::string>> names;
    for (const auto& swatch : found) {
        colours.push_back(swatch.color);
        names.push_back(swatch.name);
    }
    addAllToPalette(colours, names);
}

} // namespace tintra
