#include "colour/WashColor.h"
#include "state/AppState.h"
#include "state/AppUndo.h"
#include "state/Preferences.h"
#include "state/UpdateGroup.h"

#include <algorithm>
#include <cmath>

namespace tintra {

// The last seed that follows from the first

WashColor AppState::defaultingLast(const WashColor& first) {
    // A ramp wants two ends: deep for a light colour and light for a deep one, a little muted and a
    // step round the circle, so that what lies between stays lively.
    constexpr double kTurn = -0.7; // radians, some 40°
    const auto lab = first.oklab();
    const double lightness = lab.L < 0.62 ? 0.92 : 0.3;
    return Harmony::color(lightness, std::hypot(lab.a, lab.b) * 0.7,
                          std::atan2(lab.b, lab.a) + kTurn, first.a);
}

Seeds AppState::defaultSeeds() {
    const WashColor ultramarine{0x2F / 255.0, 0x4B / 255.0, 0xC4 / 255.0, 1};
    return {ultramarine, defaultingLast(ultramarine), false};
}

Seeds AppState::storedSeeds(const WashColor& first, const WashColor& last) {
    return {first, last, last != defaultingLast(first)};
}

// Setting seeds

void AppState::checkpointSeeds(std::string_view coalescing) {
    context_.undo.checkpointSeeds(id_, seeds_.value(), std::string(coalescing));
}

void AppState::changeSeeds(const Seeds& to, std::string_view coalescing) {
    if (to == seeds_.value()) return;
    checkpointSeeds(coalescing);
    seeds_ = to;
    persist();
}

void AppState::setSeed(SeedRole role, const WashColor& colour, std::string_view coalescing) {
    auto to = seeds_.value();
    if (role == SeedRole::last) {
        to.last = colour;
        to.lastIsExplicit = true;
    } else {
        to.first = colour;
        if (!to.lastIsExplicit) to.last = defaultingLast(colour);
    }
    changeSeeds(to, coalescing);
}

void AppState::pickFirst(const WashColor& colour) {
    context_.preferences.remember(colour);
    setSeed(SeedRole::first, colour);
}

void AppState::pickLast(const WashColor& colour) {
    context_.preferences.remember(colour);
    setSeed(SeedRole::last, colour);
}

void AppState::pickForEmpty(const WashColor& colour) {
    if (mode.value() != HarmonyMode::paletteBuilder) {
        pickFirst(colour);
        return;
    }
    context_.preferences.remember(colour);
    addToPalette(colour, Duplicates::refuse);
}

void AppState::clearSeeds() {
    restoreSeeds(defaultSeeds());
}

void AppState::restoreSeeds(const Seeds& seeds) {
    changeSeeds(seeds, {});
}

void AppState::swapSeeds() {
    restoreSeeds({last(), first(), true});
}

void AppState::receiveSeed(const Drag& drag, SeedRole as) {
    setSeed(as, drag.color);
}

// The harmony

void AppState::enterPaletteBuilder() {
    if (mode.value() == HarmonyMode::paletteBuilder) return;
    const UpdateGroup group;
    mode = HarmonyMode::paletteBuilder;
    markModeChanged();
}

void AppState::markModeChanged() {
    const UpdateGroup group;
    const auto& sizes = modeSizes.value();
    if (const auto kept = sizes.find(mode.value()); kept != sizes.end()) windowSize = kept->second;
    modeJustChanged = true;
    persist();
}

const std::vector<Harmony::Band>& AppState::bands() const {
    const BandsKey key{first(),
                       last(),
                       mode.value(),
                       std::clamp(steps.value(), kFewestSteps, kMostSteps),
                       std::clamp(shadesPerAnchor.value(), kFewestShades, kMostShades),
                       blendSpace.value()};
    if (key != bandsKey_) {
        bands_ = Harmony::bands(key.first, key.last, key.mode, key.steps, key.shades, key.space);
        bandsKey_ = key;
    }
    return bands_;
}

void AppState::addHarmonyToPalette() {
    std::vector<WashColor> colours;
    for (const auto& band : bands())
        colours.insert(colours.end(), band.begin(), band.end());
    addAllToPalette(colours);
}

} // namespace tintra
