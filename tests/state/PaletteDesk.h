#pragma once

#include "colour/ColorNames.h"
#include "platform/Services.h"
#include "state/AppState.h"
#include "state/AppUndo.h"
#include "state/Bench.h"
#include "state/ContrastBoard.h"
#include "state/Preferences.h"
#include "tests/TemporaryFolder.h"
#include "tests/support/FakeDesktop.h"

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tintra {

/// The palette windows of a test, without records or files.
class WindowsOfTest final : public PaletteWindows, public OpenPalettes, public UndoWindows {
public:
    std::vector<std::string> untitledNames(const Uuid& except) const override {
        std::vector<std::string> names;
        for (const auto& state : states)
            if (state->id() != except && !state->attachment().value())
                names.push_back(state->untitledName());
        return names;
    }
    FileVersion version(const std::filesystem::path&) const override { return {}; }
    FileVersion saved(const std::filesystem::path&) override { return {}; }
    void offerSaved(const AppState&) override {}
    void openInNewWindow(LoadedPalette) override {}
    void paletteChanged(const AppState&) override { bench->reconcileBenchProvenance(); }
    void write(const AppState&) override {}

    std::optional<Sighting> swatch(const Uuid& window, const Uuid& swatch) const override {
        const auto* state = find(window);
        const auto at = state ? state->indexOf(swatch) : std::nullopt;
        if (!at) return std::nullopt;
        const auto& found = state->swatches()[*at];
        return Sighting{
            found.color, found.name, {state->currentPaletteName(), window, swatch, *at}};
    }
    Absence absence(const Uuid& window) const override {
        return find(window) ? Absence::gone : Absence::away;
    }
    std::optional<Sighting> swatch(const std::string&, std::size_t,
                                   const WashColor&) const override {
        return std::nullopt;
    }
    bool holds(const WashColor&) const override { return false; }

    PaletteUndoTarget* undoTarget(const Uuid& window) override { return find(window); }

    AppState* find(const Uuid& window) const {
        const auto found =
            std::ranges::find(states, window, [](const auto& state) { return state->id(); });
        return found == states.end() ? nullptr : found->get();
    }

    std::vector<std::unique_ptr<AppState>> states;
    Bench* bench = nullptr;
};

/// Palette windows and the models that they share, in memory.
struct PaletteDesk {
    PaletteDesk() {
        windows.bench = &bench;
        undo.attach(windows, bench);
    }
    ~PaletteDesk() { windows.states.clear(); }
    PaletteDesk(const PaletteDesk&) = delete;
    PaletteDesk& operator=(const PaletteDesk&) = delete;

    /// A further window.
    AppState& open() {
        windows.states.push_back(std::make_unique<AppState>(
            desktop.chance.uuid(), windows.states.empty(),
            AppContext{desktop.services, preferences, undo, bench, contrast, store, windows}));
        return *windows.states.back();
    }
    /// A further window with that many different opaque colours, undo and notices as new.
    AppState& openWith(std::size_t count) {
        auto& state = open();
        for (std::size_t i = 0; i < count; ++i)
            state.addToPalette(colour(i), AppState::Duplicates::refuse);
        undo.discardEntries(state.id());
        desktop.toasts.shown.clear();
        return state;
    }
    /// One of 65,536 different colours, all of the blue 0x80.
    static WashColor colour(std::size_t i) {
        return {static_cast<double>(i % 256) / 255, static_cast<double>(i / 256 % 256) / 255,
                0x80 / 255.0, 1};
    }
    /// The texts of the notices since the last call.
    std::vector<std::string> notices() { return desktop.toasts.taken(); }
    /// The same with how long each was shown.
    std::vector<std::pair<std::string, double>> timedNotices() {
        std::vector<std::pair<std::string, double>> told;
        for (const auto& one : std::exchange(desktop.toasts.shown, {}))
            told.emplace_back(one.text, one.seconds);
        return told;
    }

    TemporaryFolder folder;
    FakeDesktop desktop{folder / "trash"};
    WindowsOfTest windows;
    Preferences preferences{desktop.services};
    AppUndo undo{desktop.services};
    Bench bench{desktop.services, windows, undo};
    ContrastBoard contrast{desktop.services, windows};
    PaletteStore store{PaletteSurroundings{desktop.loop,
                                           desktop.background,
                                           desktop.folderWatch,
                                           desktop.trash,
                                           folder / "colors",
                                           {},
                                           {}}};
};

} // namespace tintra
