#include "palettes/writers/VariableLines.h"

#include "palettes/UniqueNames.h"
#include "palettes/writers/WriterText.h"

#include <fmt/format.h>

namespace tintra {

std::string variableLines(std::span<const PaletteExport::Entry> entries, const VariableForm& form,
                          const FormatOptions& options) {
    UniqueNames slugs('-');
    std::string out;
    for (const auto& entry : entries) {
        if (!out.empty()) out.push_back('\n');
        fmt::format_to(std::back_inserter(out), "{}{}: {}{}", form.prefix,
                       slugs.add(cssSlug(entry.name, form.leadingDigit)),
                       hashedHexCode(entry.color, options), form.terminator);
    }
    return out;
}

} // namespace tintra
