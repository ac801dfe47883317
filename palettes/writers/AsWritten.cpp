#include "palettes/PaletteExport.h"
#include "palettes/Stylesheet.h"
#include "platform/Unicode.h"

namespace tintra::PaletteExport {

namespace {

/// The text without its first line, which holds the palette's name, in lower case.
std::string body(std::string_view text) {
    const auto end = text.find('\n');
    return end == std::string_view::npos ? std::string() : asciiLowerCased(text.substr(end + 1));
}

} // namespace

bool isAsWritten(std::string_view stylesheet, ExportFormat format) {
    std::vector<WashColor> colors;
    std::vector<std::optional<std::string>> names;
    for (auto& swatch : Stylesheet::read(stylesheet)) {
        colors.push_back(swatch.color);
        names.push_back(std::move(swatch.name));
    }
    const auto written = data(format, colors, names, {}, {});
    return written && body(asText(*written)) == body(stylesheet);
}

} // namespace tintra::PaletteExport
