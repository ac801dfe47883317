#include "cli/Commands.h"
#include "cli/Json.h"
#include "cli/PaletteOutput.h"
#include "cli/PictureInput.h"
#include "colour/ColorNames.h"
#include "palettes/ImagePalette.h"
#include "platform/Number.h"

#include <fmt/format.h>

#include <filesystem>

namespace tintra::cli {

namespace {

namespace fs = std::filesystem;

struct ExtractOptions {
    std::vector<std::string> pictures;
    int count = 8;
    std::string emphasis = "dominant";
    std::string out, to, name;
    bool force = false;
};

/// A picture's colours with their names.
struct PictureColours {
    std::string file;
    PictureSize size;
    std::vector<ImagePalette::Extracted> colours;
    std::vector<std::string> names;
};

/// Reports what fails.
std::optional<PictureColours> colours(Session& session, const std::string& file,
                                      const ExtractOptions& options) {
    const auto opened = pictureInput(session, file);
    if (!opened) return std::nullopt;
    const auto& picture = *opened;
    auto found =
        ImagePalette::extract(picture, options.count, *ImagePalette::emphasis(options.emphasis));
    ImagePalette::forget(picture);
    if (const auto* error = std::get_if<PictureError>(&found)) {
        reportPictureError(session, file, *error);
        return std::nullopt;
    }
    PictureColours result{file, picture.size(), std::get<0>(std::move(found)), {}};
    if (result.colours.empty()) {
        session.failure(file, fmt::format("Nothing to extract from {}", file));
        return std::nullopt;
    }
    for (const auto& colour : result.colours)
        result.names.push_back(ColorNames::shared().name(colour.color));
    return result;
}

Json pictureJson(const PictureColours& picture) {
    Json list = Json::array();
    for (std::size_t i = 0; i < picture.colours.size(); ++i) {
        const auto& colour = picture.colours[i];
        auto json = colourJson(colour.color);
        json["name"] = picture.names[i];
        json["share"] = colour.share;
        json["point"] = {colour.point.x, colour.point.y};
        list.push_back(std::move(json));
    }
    return {{"picture", picture.file},
            {"width", picture.size.width},
            {"height", picture.size.height},
            {"colours", std::move(list)}};
}

/// Whole percent; what is there but rounds to nothing is told from nothing.
std::string shareText(double share) {
    return share < 0.005 ? "<1 %" : fixed(share * 100, 0) + " %";
}

enum class Heading { none, file };

void printPicture(Session& session, const PictureColours& picture, Heading heading) {
    if (heading == Heading::file)
        session.printLine(fmt::format("{} ({})", picture.file, picture.colours.size()));
    for (std::size_t i = 0; i < picture.colours.size(); ++i)
        session.printLine(fmt::format("{} {:>5}  {}", labelled(session, picture.colours[i].color),
                                      shareText(picture.colours[i].share), picture.names[i]));
}

std::vector<std::string> emphasisChoices() {
    std::vector<std::string> choices;
    for (const auto emphasis : ImagePalette::allEmphases())
        choices.emplace_back(rawValue(emphasis));
    return choices;
}

/// One palette of the colours of all pictures.
void write(Session& session, const ExtractOptions& options,
           const std::vector<PictureColours>& pictures) {
    if (pictures.empty()) return;
    OutputPalette palette;
    for (const auto& picture : pictures)
        for (std::size_t i = 0; i < picture.colours.size(); ++i) {
            palette.colours.push_back(picture.colours[i].color);
            palette.names.emplace_back(picture.names[i]);
        }
    auto name = options.name;
    if (name.empty())
        name = fs::path(pictures.size() == 1 || options.out == "-" ? pictures.front().file
                                                                   : options.out)
                   .stem()
                   .string();
    writePalette(session, {options.out, outputFormat(options.out, options.to), name}, palette,
                 options.force ? Existing::replace : Existing::refuse);
}

void extract(Session& session, const ExtractOptions& options) {
    const bool writes = !options.out.empty();
    if (!writes && !options.to.empty()) throw UsageError{"--to goes with -o"};
    // Wrong usage shows before the work.
    if (writes) outputFormat(options.out, options.to);
    const auto heading = options.pictures.size() > 1 ? Heading::file : Heading::none;
    std::vector<PictureColours> pictures;
    Json list = Json::array();
    for (std::size_t i = 0; i < options.pictures.size(); ++i) {
        if (options.pictures.size() > 1) session.progress(i, options.pictures.size(), "pictures");
        auto picture = colours(session, options.pictures[i], options);
        if (!picture) continue;
        if (session.json())
            list.push_back(pictureJson(*picture));
        else if (!writes)
            printPicture(session, *picture, heading);
        if (writes) pictures.push_back(std::move(*picture));
    }
    if (writes) write(session, options, pictures);
    if (session.json() && options.out != "-") session.printJson(list);
}

} // namespace

Action declareExtract(Declaration& declaration) {
    const auto options = std::make_shared<ExtractOptions>();
    declaration.positional("PICTURE", options->pictures, "A picture file; “-” is standard input",
                           Takes::file);
    declaration.number("--count", options->count, 1, ImagePalette::kMostColours, "N",
                       fmt::format("How many colours of each picture, 1 to {} (default 8)",
                                   ImagePalette::kMostColours));
    declaration.choice("--emphasis", options->emphasis, emphasisChoices(), "EMPHASIS",
                       "dominant: what covers most (the default); vibrant: strong colours; "
                       "spread: colours far apart");
    declaration.option("-o,--output", options->out, "OUT",
                       "Write one palette of all colours to this file; “-” is standard output",
                       Takes::file);
    declaration.choice("--to", options->to, formatChoices(), "FORMAT",
                       "Format of OUT, whatever its extension");
    declaration.option("--name", options->name, "NAME",
                       "Name of the palette (default: the picture's)");
    declaration.flag("--force", options->force, "Replace a file that exists");
    return [options](Session& session) { extract(session, *options); };
}

} // namespace tintra::cli
