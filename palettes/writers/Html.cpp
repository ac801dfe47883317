#include "palettes/PaletteExport.h"
#include "palettes/writers/WriterText.h"

#include <fmt/format.h>

namespace tintra {

namespace {

constexpr std::string_view kStyle = R"(</title>
<style>
  body { font: 14px -apple-system, system-ui, sans-serif; margin: 2rem; }
  .palette { display: flex; flex-wrap: wrap; gap: .5rem; }
  figure { margin: 0; width: 9rem; height: 9rem; border-radius: .5rem;
           display: flex; align-items: flex-end; padding: .75rem; }
  figcaption { font-size: .8rem; line-height: 1.4; }
  code { font-size: .75rem; opacity: .85; }
</style></head>
<body><h1>)";

/// The page has no background of its own, so a translucent swatch shows on white, whatever ground
/// the program itself shows it on.
WashColor overPage(const WashColor& colour) {
    if (colour.isOpaque()) return colour;
    const auto over = [&colour](double channel) { return channel * colour.a + (1 - colour.a); };
    return {over(colour.r), over(colour.g), over(colour.b), 1};
}

/// A hex code of eight digits is a CSS value too (CSS Color 4).
void appendFigure(std::string& out, const PaletteExport::Entry& entry,
                  const FormatOptions& options) {
    const auto foreground = overPage(entry.color).readableForeground();
    fmt::format_to(std::back_inserter(out),
                   "  <figure style=\"background:{};color:{}\">\n"
                   "    <figcaption>{}<br><code>{}</code></figcaption>\n"
                   "  </figure>",
                   hashedHexCode(entry.color, options), foreground.r > 0 ? "#fff" : "#000",
                   markupText(entry.name), hexCode(entry.color, options));
}

} // namespace

std::string PaletteExport::html(std::string_view name, std::span<const Entry> entries,
                                const FormatOptions& options) {
    const auto title = markupText(name);
    std::string out = "<!doctype html>\n<html><head><meta charset=\"utf-8\"><title>" + title;
    out.append(kStyle).append(title).append("</h1><div class=\"palette\">\n");
    bool first = true;
    for (const auto& entry : entries) {
        if (!first) out.push_back('\n');
        first = false;
        appendFigure(out, entry, options);
    }
    return out += "\n</div></body></html>";
}

} // namespace tintra
