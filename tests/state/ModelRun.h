#pragma once

#include "state/Models.h"
#include "tests/TemporaryFolder.h"
#include "tests/support/FakeDesktop.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tintra {

/// A desktop with files of its own, on which the program runs again and again.
struct Machine {
    TemporaryFolder folder;
    FakeDesktop desktop{folder / "trash"};

    MemoryDefaults& defaults() { return desktop.defaults; }
    std::vector<std::string> notices() { return desktop.toasts.taken(); }
};

/// One run of the program, from its start on. It ends without a word, as if it were killed, unless
/// `quits` is asked first.
struct ModelRun {
    explicit ModelRun(Machine& on)
        : machine(on), models(on.desktop.services, {on.desktop.loop,
                                                    on.desktop.background,
                                                    on.desktop.folderWatch,
                                                    on.desktop.trash,
                                                    on.folder / "colors",
                                                    {},
                                                    {}}) {
        opening = models.start([this](const Uuid& window) { shown.push_back(window); });
        models.preferences().windows.openNewWindow = [this](const Uuid& window) {
            shown.push_back(window);
        };
    }

    Workspaces& windows() { return models.workspaces(); }
    Bench& bench() { return models.bench(); }
    AppState& primary() { return *windows().primary(); }
    /// The window at a place of the opening order.
    AppState& window(std::size_t at) { return *windows().state(windows().order().value().at(at)); }
    std::size_t count() { return windows().order().value().size(); }

    /// Whether it may end, the dialogues answered in turn.
    bool quits(const std::vector<std::string>& answers = {}) {
        answer(answers);
        std::optional<bool> may;
        models.quit([&](bool quits) { may = quits; });
        machine.desktop.loop.turn();
        return may.value();
    }
    bool closes(const AppState& window, const std::vector<std::string>& answers = {}) {
        answer(answers);
        std::optional<bool> did;
        windows().close(window.id(), [&](bool closed) { did = closed; });
        machine.desktop.loop.turn();
        return did.value();
    }
    void answer(const std::vector<std::string>& answers) {
        auto& buttons = machine.desktop.dialogues.buttons;
        buttons.assign(answers.begin(), answers.end());
    }
    /// Every record that was waiting is written.
    void pass() { machine.desktop.loop.pass(1); }

    void open(AppState& in, const std::filesystem::path& file) {
        in.open(file);
        machine.desktop.loop.turn();
    }
    void saveTo(AppState& window, const std::filesystem::path& file) {
        window.saveAs(file, ExportFormat::gpl);
        machine.desktop.loop.turn();
    }
    void save(AppState& window) {
        window.savePalette();
        machine.desktop.loop.turn();
    }

    Machine& machine;
    std::vector<Uuid> shown; ///< palette windows, in the order in which they were asked for
    Models models;
    Models::Opening opening;
};

inline WashColor color(std::string_view hex) {
    return WashColor::fromHex(hex).value();
}

} // namespace tintra
