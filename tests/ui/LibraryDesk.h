#pragma once

#include "tests/ui/Desk.h"
#include "ui/library/LibraryCanvas.h"
#include "ui/library/LibraryWindow.h"

#include <QLineEdit>
#include <QMenu>
#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

namespace tintra::test {

/// A desk whose Library watches real folders.
struct LibraryDesk : Desk {
    using Colours = std::vector<std::pair<const char*, const char*>>; ///< code and name

    /// Writes a GIMP palette; colours are "r g b".
    std::filesystem::path gpl(const std::string& file, const Colours& colours) const {
        std::string text = "GIMP Palette\n#\n";
        for (const auto& [code, name] : colours)
            text += std::string(code) + "\t" + name + "\n";
        std::filesystem::create_directories((folder / file).parent_path());
        return folder.write(file, text);
    }
    /// The same of that many swatches, "NAME 0" and so on, in different colours.
    std::filesystem::path gpl(const std::string& file, int swatches,
                              const std::string& name) const {
        std::string text = "GIMP Palette\n#\n";
        for (int i = 0; i < swatches; ++i)
            text += std::to_string(i * 67 % 256) + " " + std::to_string(i * 151 % 256) + " " +
                    std::to_string(i % 256) + "\t" + name + " " + std::to_string(i) + "\n";
        std::filesystem::create_directories((folder / file).parent_path());
        return folder.write(file, text);
    }
    static void date(const std::filesystem::path& file, int daysAgo) {
        using namespace std::chrono;
        const sys_seconds day(1'700'000'000s - hours(24 * daysAgo));
        std::filesystem::last_write_time(file, file_clock::from_sys(day));
    }
    void watch(const std::string& name) {
        auto locations = models.preferences().paletteLocations.value();
        locations.push_back({.id = desktop.services.chance.uuid(),
                             .nickname = name,
                             .path = folder / name,
                             .tag = {},
                             .bookmark = {}});
        models.preferences().paletteLocations = std::move(locations);
        settle();
    }
    /// The listed palettes in the window, top to bottom, an indented line each under its group;
    /// "+" before what is unfolded, "-" before a group that is folded.
    static std::vector<std::string> rows(LibraryWindow& window) {
        std::vector<std::string> lines;
        for (const auto& item : child<LibraryCanvas>(window)->items()) {
            if (item.kind == LibraryCanvas::header)
                lines.push_back((item.expanded.value_or(true) ? "" : "-") + toUtf8(item.name) +
                                ": " + toUtf8(item.value));
            if (item.kind == LibraryCanvas::palette)
                lines.push_back((item.expanded.value_or(false) ? " +" : " ") + toUtf8(item.name));
        }
        return lines;
    }
};

} // namespace tintra::test
