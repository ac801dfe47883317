#include "palettes/PaletteExport.h"
#include "palettes/writers/WriterText.h"

#include <fmt/format.h>

namespace tintra {

std::string PaletteExport::xml(std::string_view name, std::span<const Entry> entries,
                               const FormatOptions& options) {
    std::string out =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<palette name=\"" + markupText(name) + "\">";
    for (const auto& entry : entries) {
        const auto rgb = selectedRgb255(entry.color);
        fmt::format_to(
            std::back_inserter(out),
            "\n  <color name=\"{}\" hex=\"{}\" r=\"{}\" g=\"{}\" b=\"{}\" alpha=\"{}\"/>",
            markupText(entry.name), hexCode(entry.color, options), rgb.r, rgb.g, rgb.b,
            alphaText(entry.color));
    }
    return out += "\n</palette>";
}

} // namespace tintra
