#include "cli/PaletteOutput.h"

#include "cli/Commands.h"
#include "cli/FileOutput.h"
#include "platform/Unicode.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <filesystem>

namespace tintra::cli {

namespace {

namespace fs = std::filesystem;

/// Translucent swatches lose their alpha in most formats; whoever converts should know.
void noticeLostAlpha(Session& session, const PaletteOutput& output, const OutputPalette& palette) {
    if (holdsAlpha(output.format)) return;
    std::vector<std::string> translucent;
    const auto entries = PaletteExport::entries(palette.colours, palette.names);
    for (const auto& entry : entries)
        if (!entry.color.isOpaque()) translucent.push_back(entry.name);
    if (translucent.empty()) return;
    session.notice(output.file, fmt::format("{} holds no alpha: {} saved opaque",
                                            upperCased(fileExtension(output.format)),
                                            fmt::join(translucent, ", ")));
}

} // namespace

std::vector<std::string> formatChoices() {
    std::vector<std::string> ids;
    for (const auto format : allExportFormats())
        ids.emplace_back(rawValue(format));
    return ids;
}

ExportFormat outputFormat(const std::string& file, const std::string& identifier) {
    if (!identifier.empty()) return *exportFormat(identifier);
    const auto extension = fs::path(file).extension().string();
    const auto format =
        exportFormatForExtension(std::string_view(extension).substr(extension.empty() ? 0 : 1));
    if (!format)
        throw UsageError{fmt::format("“{}” has no extension of a format; --to says which", file)};
    return *format;
}

void writePalette(Session& session, const PaletteOutput& output, const OutputPalette& palette,
                  Existing existing) {
    const auto data = PaletteExport::data(output.format, palette.colours, palette.names,
                                          output.name, FormatOptions{});
    if (!data) {
        session.failure(output.file, fmt::format("Nothing to write for {}", title(output.format)));
        return;
    }
    if (writeOutput(session, output.file, *data, existing) == Written::toFile)
        noticeLostAlpha(session, output, palette);
}

} // namespace tintra::cli
