#pragma once

#include "cli/Session.h"
#include "palettes/PaletteExport.h"
#include "platform/File.h"

#include <optional>
#include <string>
#include <vector>

namespace tintra::cli {

/// Where a palette is written.
struct PaletteOutput {
    std::string file; ///< "-" is standard output
    ExportFormat format;
    std::string name; ///< of the palette
};

/// Colours and their names in two lists, as the writers take them.
struct OutputPalette {
    std::vector<WashColor> colours;
    std::vector<std::optional<std::string>> names;
};

/// The identifiers that --to takes.
std::vector<std::string> formatChoices();

/// The format of an output file: the one of the identifier, where one is given, else the one of the
/// file's extension; wrong usage where that is none.
ExportFormat outputFormat(const std::string& file, const std::string& identifier);

/// Writes the palette; reports what fails, and notices the alpha that the format cannot hold.
void writePalette(Session& session, const PaletteOutput& output, const OutputPalette& palette,
                  Existing existing);

} // namespace tintra::cli
