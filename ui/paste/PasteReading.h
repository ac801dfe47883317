#pragma once

#include "colour/WashColor.h"
#include "palettes/Swatch.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tintra {

/// The colours of a text that a person types or pastes, as a palette takes them, and what is read
/// in each of its lines.
struct PasteReading {
    /// A line that says something.
    struct Line {
        std::size_t number = 0;            ///< from 0
        std::optional<WashColor> color{};  ///< its first; none: nothing is read
        std::optional<std::string> name{}; ///< that a variable gives it
        std::size_t more = 0;              ///< further colours of the line
        bool isRepeat = false; ///< nothing of it counts: a stylesheet has held it before
    };
    /// In order; no more than these are told of.
    static constexpr std::size_t kMostLines = 20'000;
    std::vector<Line> lines;
    /// What AppState::receiveText takes from the same text.
    std::vector<PaletteFile::Swatch> swatches;

    /// What is read in a line; null where it says nothing.
    const Line* line(std::size_t number) const;
};

/// Pure, any thread; linear in the text.
PasteReading readPasted(std::string_view text);

} // namespace tintra
