#include "palettes/PaletteExport.h"
#include "palettes/writers/WriterText.h"

#include <fmt/format.h>

#include <algorithm>

namespace tintra {

namespace {

constexpr std::size_t kSide = 80;

WashColor withoutAlpha(WashColor colour) {
    colour.a = 1;
    return colour;
}

void appendSquare(std::string& out, const PaletteExport::Entry& entry, std::size_t index,
                  const FormatOptions& options) {
    fmt::format_to(std::back_inserter(out),
                   "\n  <rect x=\"{}\" y=\"0\" width=\"{}\" height=\"{}\" fill=\"{}", kSide * index,
                   kSide, kSide, hashedHexCode(withoutAlpha(entry.color), options));
    if (!entry.color.isOpaque()) out += "\" fill-opacity=\"" + alphaText(entry.color);
    out += "\"><title>" + markupText(entry.name) + "</title></rect>";
}

} // namespace

std::string PaletteExport::svg(std::span<const Entry> entries, const FormatOptions& options) {
    const auto width = kSide * std::max<std::size_t>(entries.size(), 1);
    auto out = fmt::format("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"{0}\" height=\"{1}\""
                           " viewBox=\"0 0 {0} {1}\">",
                           width, kSide);
    std::size_t index = 0;
    for (const auto& entry : entries)
        appendSquare(out, entry, index++, options);
    return out += "\n</svg>";
}

} // namespace tintra
