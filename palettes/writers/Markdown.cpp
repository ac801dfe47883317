#include "palettes/PaletteExport.h"
#include "palettes/writers/WriterText.h"

#include <fmt/format.h>

namespace tintra {

namespace {

/// What begins a cell, emphasis, code, a link, strike-through or a tag in the middle of a line
/// (CommonMark and its table extension); a backslash makes each of them plain text.
constexpr std::string_view kInlineMarks = "\\|*_`[]~<";

std::string plainText(std::string_view name) {
    std::string text;
    for (const char c : singleLine(name)) {
        if (kInlineMarks.find(c) != std::string_view::npos) text.push_back('\\');
        text.push_back(c);
    }
    return text;
}

} // namespace

std::string PaletteExport::markdown(std::string_view name, std::span<const Entry> entries,
                                    const FormatOptions& options) {
    std::string out =
        "# " + plainText(name) + "\n\n| Name | Hex | RGB | CMYK |\n| --- | --- | --- | --- |\n";
    for (const auto& entry : entries) {
        const auto rgb = selectedRgb255(entry.color);
        fmt::format_to(std::back_inserter(out), "| {} | {} | {}, {}, {} | {} |\n",
                       plainText(entry.name), hexCode(entry.color, options), rgb.r, rgb.g, rgb.b,
                       inkPercents(entry.color));
    }
    return out;
}

} // namespace tintra
