#include "cli/Commands.h"
#include "cli/Json.h"
#include "cli/PaletteInput.h"
#include "platform/Unicode.h"

#include <fmt/format.h>

namespace tintra::cli {

namespace {

struct ReadOptions {
    std::vector<std::string> files;
    std::string as;
};

Json paletteJson(const PaletteInput& palette) {
    Json swatches = Json::array();
    for (const auto& swatch : palette.swatches) {
        auto json = colourJson(swatch.color);
        json["name"] = textOrNull(swatch.name);
        swatches.push_back(std::move(json));
    }
    return {{"file", palette.file}, {"name", palette.name}, {"swatches", std::move(swatches)}};
}

void printPalette(Session& session, const PaletteInput& palette) {
    for (const auto& swatch : palette.swatches) {
        const auto name = swatch.name ? "  " + controlsToSpaces(*swatch.name) : std::string();
        session.printLine(labelled(session, swatch.color) + name);
    }
}

void read(Session& session, const ReadOptions& options) {
    Json list = Json::array();
    forEachPalette(session, options.files, options.as, [&](const PaletteInput& palette) {
        if (session.json()) {
            list.push_back(paletteJson(palette));
            return;
        }
        if (options.files.size() > 1)
            session.printLine(fmt::format("{} ({})", palette.file, palette.swatches.size()));
        printPalette(session, palette);
    });
    if (session.json()) session.printJson(list);
}

} // namespace

Action declareRead(Declaration& declaration) {
    const auto options = std::make_shared<ReadOptions>();
    declaration.positional("FILE", options->files, "A palette file or stylesheet; “-” is text",
                           Takes::file);
    declaration.choice("--as", options->as, asChoices(), "KIND",
                       "What the input is, whatever its name; text is a colour a line");
    return [options](Session& session) { read(session, *options); };
}

} // namespace tintra::cli
