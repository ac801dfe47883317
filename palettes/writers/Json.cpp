#include "colour/Hex.h"
#include "palettes/PaletteExport.h"
#include "palettes/writers/WriterText.h"
#include "platform/Number.h"

#include <fmt/format.h>

namespace tintra {

namespace {

/// A name between the quotes of a JSON string. The entities of the markup formats are written here
/// too, on purpose: other programs that read these files expect them.
std::string jsonText(std::string_view name) {
    std::string text;
    for (const char c : entityEscaped(wellFormed(name))) {
        if (c == '\\') {
            text += "\\\\";
        } else if (static_cast<unsigned char>(c) < 0x20) {
            text += "\\u00";
            appendHexByte(text, c);
        } else {
            text.push_back(c);
        }
    }
    return text;
}

std::string hslNumbers(const WashColor& colour) {
    const auto hsl = colour.hsl();
    return fixed(hsl.h, 0) + ", " + fixed(hsl.s, 0) + ", " + fixed(hsl.l, 0);
}

void appendEntry(std::string& out, const PaletteExport::Entry& entry,
                 const FormatOptions& options) {
    const auto rgb = selectedRgb255(entry.color);
    fmt::format_to(std::back_inserter(out),
                   "{{\n"
                   "        \"name\": \"{}\",\n"
                   "        \"hex\": \"{}\",\n"
                   "        \"rgb\": [{}, {}, {}],\n"
                   "        \"hsl\": [{}],\n"
                   "        \"cmyk\": [{}],\n"
                   "        \"alpha\": {}\n"
                   "      }}",
                   jsonText(entry.name), hexCode(entry.color, options), rgb.r, rgb.g, rgb.b,
                   hslNumbers(entry.color), inkPercents(entry.color), alphaText(entry.color));
}

} // namespace

std::string PaletteExport::json(std::string_view name, std::span<const Entry> entries,
                                const FormatOptions& options) {
    std::string out = "{\n  \"name\": \"" + jsonText(name) + "\",\n  \"colors\": [\n    ";
    bool first = true;
    for (const auto& entry : entries) {
        if (!first) out += ",\n    ";
        first = false;
        appendEntry(out, entry, options);
    }
    return out += "\n  ]\n}";
}

} // namespace tintra
