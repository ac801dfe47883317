#include "palettes/PaletteExport.h"
#include "palettes/writers/VariableLines.h"
#include "palettes/writers/WriterText.h"

namespace tintra {

namespace {

constexpr VariableForm kScss{"$", ";", LeadingDigit::notAllowed};
constexpr VariableForm kSass{"$", "", LeadingDigit::notAllowed};
constexpr VariableForm kLess{"@", ";", LeadingDigit::notAllowed};

std::string variables(std::string_view name, std::span<const PaletteExport::Entry> entries,
                      const VariableForm& form, const FormatOptions& options) {
    return "// " + singleLine(name) + '\n' + variableLines(entries, form, options) + '\n';
}

} // namespace

std::string PaletteExport::scss(std::string_view name, std::span<const Entry> entries,
                                const FormatOptions& options) {
    return variables(name, entries, kScss, options);
}

std::string PaletteExport::sass(std::string_view name, std::span<const Entry> entries,
                                const FormatOptions& options) {
    return variables(name, entries, kSass, options);
}

std::string PaletteExport::less(std::string_view name, std::span<const Entry> entries,
                                const FormatOptions& options) {
    return variables(name, entries, kLess, options);
}

} // namespace tintra
