#pragma once

#include "palettes/PaletteFile.h"
#include "state/Models.h"
#include "tests/TemporaryFolder.h"
#include "tests/support/FakeDesktop.h"

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace tintra {

using Texts = std::vector<std::string>;

/// The models on a desktop in memory, with real palette files in a folder.
struct FilesDesk {
    FilesDesk() {
        models.start([](const Uuid&) {});
    }

    AppState& window() { return *models.workspaces().primary(); }
    AppState& another() { return models.workspaces().openExtra(); }
    /// Lets everything arrive that is done.
    void settle() { desktop.loop.turn(); }
    AppState& opened(AppState& in, const std::filesystem::path& file) {
        in.open(file);
        settle();
        return in;
    }
    /// A GIMP palette of that many reds, called "Swatch 0" and so on.
    std::filesystem::path gpl(const std::string& name, int swatches) const {
        std::string text = "GIMP Palette\n";
        for (int i = 0; i < swatches; ++i)
            text += std::to_string(i % 256) + " " + std::to_string(i / 256) + " 0 Swatch " +
                    std::to_string(i) + "\n";
        return folder.write(name, text);
    }
    static std::size_t count(const std::filesystem::path& file) {
        return PaletteFile::readNamed(file).value_or(std::vector<PaletteFile::Swatch>{}).size();
    }
    static void add(AppState& to, double blue, double alpha = 1) {
        to.addToPalette({0, 0, blue, alpha}, AppState::Duplicates::refuse);
    }
    Texts notices() { return desktop.toasts.taken(); }
    void answer(std::string button) { desktop.dialogues.buttons.push_back(std::move(button)); }
    const Question& question() const { return desktop.dialogues.questions.back(); }
    std::size_t questions() const { return desktop.dialogues.questions.size(); }

    TemporaryFolder folder;
    FakeDesktop desktop{folder / "trash"};
    Models models{desktop.services, PaletteSurroundings{desktop.loop,
                                                        desktop.background,
                                                        desktop.folderWatch,
                                                        desktop.trash,
                                                        folder / "colors",
                                                        {},
                                                        {}}};
};

} // namespace tintra
