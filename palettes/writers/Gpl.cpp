#include "palettes/PaletteExport.h"
#include "palettes/writers/WriterText.h"

#include <fmt/format.h>

namespace tintra {

std::string PaletteExport::gpl(std::string_view name, std::span<const Entry> entries) {
    std::string out = "GIMP Palette\nName: " + singleLine(name) + "\nColumns: 0\n#\n";
    for (const auto& entry : entries) {
        const auto rgb = entry.color.srgb255();
        fmt::format_to(std::back_inserter(out), "{:3} {:3} {:3}\t{}\n", rgb.r, rgb.g, rgb.b,
                       singleLine(entry.name));
    }
    return out;
}

} // namespace tintra
