#include "palettes/PaletteExport.h"
#include "palettes/writers/VariableLines.h"
#include "palettes/writers/WriterText.h"

namespace tintra {

namespace {

/// A name inside a block comment, which it must not close.
std::string commentText(std::string_view name) {
    auto text = singleLine(name);
    for (auto at = text.find("*/"); at != std::string::npos; at = text.find("*/", at))
        text.insert(at + 1, 1, ' ');
    return text;
}

} // namespace

std::string PaletteExport::css(std::string_view name, std::span<const Entry> entries,
                               const FormatOptions& options) {
    return "/* " + commentText(name) + " */\n:root {\n" +
           variableLines(entries, {"  --", ";", LeadingDigit::allowed}, options) + "\n}\n";
}

} // namespace tintra
