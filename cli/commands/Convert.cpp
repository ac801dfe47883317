#include "cli/Commands.h"
#include "cli/PaletteInput.h"
#include "cli/PaletteOutput.h"

#include <fmt/format.h>

#include <filesystem>
#include <set>

namespace tintra::cli {

namespace {

namespace fs = std::filesystem;

struct ConvertOptions {
    std::vector<std::string> files;
    std::string as, out, to, outFolder, name;
    bool force = false;
};

void add(OutputPalette& palette, const PaletteInput& input) {
    for (const auto& swatch : input.swatches) {
        palette.colours.push_back(swatch.color);
        palette.names.push_back(swatch.name);
    }
}

/// Several inputs become one palette.
void convertTogether(Session& session, const ConvertOptions& options) {
    const auto format = outputFormat(options.out, options.to);
    OutputPalette palette;
    std::vector<std::string> names;
    forEachPalette(session, options.files, options.as, [&](const PaletteInput& input) {
        add(palette, input);
        names.push_back(input.name);
    });
    if (names.empty()) return;
    auto name = options.name;
    if (name.empty() && (names.size() == 1 || options.out == "-")) name = names.front();
    if (name.empty()) name = fs::path(options.out).stem().string();
    writePalette(session, {options.out, format, name}, palette,
                 options.force ? Existing::replace : Existing::refuse);
}

/// Where an input's own file goes: beside it, or into the folder that was named.
std::string ownFile(const PaletteInput& input, ExportFormat format, const std::string& folder) {
    const auto file = input.file == "-" ? fs::path(input.name) : fs::path(input.file);
    auto name = file.stem();
    name += fmt::format(".{}", fileExtension(format));
    return ((folder.empty() ? file.parent_path() : fs::path(folder)) / name).string();
}

/// The folder is made when it is missing; an empty name stands for the inputs' own folders.
bool makeFolder(Session& session, const std::string& folder) {
    if (folder.empty()) return true;
    std::error_code failed;
    fs::create_directories(folder, failed);
    if (!failed && fs::is_directory(folder, failed)) return true;
    session.failure(folder, failed ? failed.message() : "Not a directory");
    return false;
}

/// Every input becomes a file of its own.
void convertEach(Session& session, const ConvertOptions& options) {
    const auto format = outputFormat(options.out, options.to);
    if (!makeFolder(session, options.outFolder)) return;
    std::set<std::string> written;
    forEachPalette(session, options.files, options.as, [&](const PaletteInput& input) {
        const auto file = ownFile(input, format, options.outFolder);
        if (!written.insert(fs::path(file).lexically_normal().string()).second) {
            session.failure(input.file, fmt::format("{} is written by another input", file));
            return;
        }
        OutputPalette palette;
        add(palette, input);
        writePalette(session, {file, format, options.name.empty() ? input.name : options.name},
                     palette, options.force ? Existing::replace : Existing::refuse);
    });
}

void convert(Session& session, const ConvertOptions& options) {
    if (options.out.empty() && options.to.empty())
        throw UsageError{"convert needs -o OUT or --to FORMAT"};
    if (!options.out.empty() && !options.outFolder.empty())
        throw UsageError{"--out-dir goes with --to, not with -o"};
    if (options.out.empty())
        convertEach(session, options);
    else
        convertTogether(session, options);
}

} // namespace

Action declareConvert(Declaration& declaration) {
    const auto options = std::make_shared<ConvertOptions>();
    declaration.positional("FILE", options->files, "A palette file or stylesheet; “-” is text",
                           Takes::file);
    declaration.option("-o,--output", options->out, "OUT",
                       "Write one palette to this file; “-” is standard output", Takes::file);
    declaration.choice("--to", options->to, formatChoices(), "FORMAT", "Format to write");
    declaration.option("--out-dir", options->outFolder, "DIR",
                       "With --to: write the files into this folder", Takes::folder);
    declaration.option("--name", options->name, "NAME",
                       "Name of the palette (default: the file's)");
    declaration.choice("--as", options->as, asChoices(), "KIND",
                       "What the input is, whatever its name; text is a colour a line");
    declaration.flag("--force", options->force, "Replace files that exist");
    return [options](Session& session) { convert(session, *options); };
}

} // namespace tintra::cli
