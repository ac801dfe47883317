#pragma once

#include "colour/ColorFormat.h"
#include "palettes/PaletteExport.h"

#include <span>
#include <string>
#include <string_view>

namespace tintra {

/// How a language of stylesheets declares a variable.
struct VariableForm {
    std::string_view prefix;     ///< what stands before the slug
    std::string_view terminator; ///< what stands after the value
    LeadingDigit leadingDigit;
};

/// A declaration an entry, joined by line breaks; slugs that would repeat are numbered ("red-2").
std::string variableLines(std::span<const PaletteExport::Entry> entries, const VariableForm& form,
                          const FormatOptions& options);

} // namespace tintra
