#pragma once

#include "state/OpenPalettes.h"
#include "state/UndoTargets.h"

#include <map>
#include <utility>

namespace tintra {

/// A palette window that is only what it holds.
struct FakeWindow final : PaletteUndoTarget {
    std::optional<std::string> name;
    std::vector<PaletteSwatch> held;
    Seeds seeds;

    const std::vector<PaletteSwatch>& swatches() const override { return held; }
    PaletteContent exchangePalette(PaletteContent other) override {
        std::swap(held, other.swatches);
        return other;
    }
    Seeds exchangeSeeds(Seeds other) override { return std::exchange(seeds, other); }
    void exchangeMove(std::size_t from, std::size_t to) override {
        auto swatch = held.at(from);
        held.erase(held.begin() + static_cast<std::ptrdiff_t>(from));
        held.insert(held.begin() + static_cast<std::ptrdiff_t>(to), std::move(swatch));
    }
    PaletteContent content() const {
        PaletteContent result;
        result.swatches = held;
        return result;
    }
};

/// Palette windows that a test opens and closes.
struct FakePalettes final : OpenPalettes, UndoWindows {
    std::map<Uuid, FakeWindow> open;

    std::optional<Sighting> swatch(const Uuid& window, const Uuid& swatch) const override {
        return sighting([&](const Sighting& seen) {
            return seen.origin.windowID == window && seen.origin.swatchID == swatch;
        });
    }
    Absence absence(const Uuid& window) const override {
        return open.contains(window) ? Absence::gone : Absence::away;
    }
    std::optional<Sighting> swatch(const std::string& paletteName, std::size_t index,
                                   const WashColor& color) const override {
        return sighting([&](const Sighting& seen) {
            return seen.origin.paletteName == paletteName && seen.origin.index == index &&
                   seen.color == color;
        });
    }
    bool holds(const WashColor& color) const override {
        return sighting([&](const Sighting& seen) { return seen.color == color; }).has_value();
    }
    PaletteUndoTarget* undoTarget(const Uuid& window) override {
        const auto found = open.find(window);
        return found == open.end() ? nullptr : &found->second;
    }

private:
    template <class Wanted>
    std::optional<Sighting> sighting(Wanted wanted) const {
        for (const auto& [id, window] : open)
            for (std::size_t i = 0; i < window.held.size(); ++i) {
                const auto& [swatch, color, name] = window.held[i];
                Sighting seen{color, name, {window.name, id, swatch, i}};
                if (wanted(seen)) return seen;
            }
        return std::nullopt;
    }
};

} // namespace tintra
