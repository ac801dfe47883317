#include "colour/Vision.h"

#include "cli/ColourArguments.h"
#include "cli/Commands.h"
#include "cli/FileOutput.h"
#include "cli/Json.h"
#include "cli/PictureInput.h"
#include "platform/PngEncoder.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <span>

namespace tintra::cli {

namespace {

struct VisionOptions {
    std::string kind;
    std::vector<std::string> colours;
    std::string picture, out;
    bool force = false;
};

void seeColours(Session& session, Vision kind, const VisionOptions& options) {
    Json list = Json::array();
    for (const auto& colour : colourArguments(session, options.colours)) {
        const auto seen = simulate(kind, colour);
        if (session.json())
            list.push_back(colourJson(seen));
        else
            session.printLine(labelled(session, seen));
    }
    if (session.json()) session.printJson(list);
}

std::optional<Bytes> pngOf(const PixelBuffer& pixels) {
    const auto width = static_cast<std::size_t>(pixels.size.width);
    return encodePng(pixels.size, [&](std::size_t y, std::span<Rgba8> row) {
        static_assert(sizeof(Rgba8) == 4);
        std::memcpy(row.data(), pixels.rgba.data() + y * width * 4, row.size_bytes());
    });
}

/// The whole picture at its full size.
void seePicture(Session& session, Vision kind, const VisionOptions& options) {
    const auto picture = pictureInput(session, options.picture);
    if (!picture) return;
    const auto size = picture->size();
    auto read = picture->reduced(std::max(size.width, size.height), AlphaForm::straight);
    if (const auto* error = std::get_if<PictureError>(&read)) {
        reportPictureError(session, options.picture, *error);
        return;
    }
    auto& pixels = std::get<PixelBuffer>(read);
    simulatePicture(kind, pixels.rgba);
    const auto png = pngOf(pixels);
    if (png)
        writeOutput(session, options.out, *png,
                    options.force ? Existing::replace : Existing::refuse);
    else
        session.failure(options.out, "the picture could not be written as PNG");
}

void see(Session& session, const VisionOptions& options) {
    const auto kind = vision(options.kind).value_or(Vision::typical);
    const bool ofPicture = !options.picture.empty();
    if (ofPicture == !options.colours.empty())
        throw UsageError{"vision needs either colours or --picture"};
    if (ofPicture == options.out.empty()) throw UsageError{"--picture and -o go together"};
    if (ofPicture)
        seePicture(session, kind, options);
    else
        seeColours(session, kind, options);
}

std::vector<std::string> kinds() {
    std::vector<std::string> texts;
    for (const auto kind : allVisions())
        texts.emplace_back(rawValue(kind));
    return texts;
}

} // namespace

Action declareVision(Declaration& declaration) {
    const auto options = std::make_shared<VisionOptions>();
    declaration.positionalChoice("KIND", options->kind, kinds(), "The kind of colour vision");
    declaration.optional(declaration.positional("COLOUR", options->colours, kColourHelp));
    declaration.option("--picture", options->picture, "IN",
                       "Show a whole picture instead; “-” is standard input", Takes::file);
    declaration.option("-o,--output", options->out, "OUT",
                       "With --picture: the PNG file to write; “-” is standard output",
                       Takes::file);
    declaration.flag("--force", options->force, "Replace a file that exists");
    return [options](Session& session) { see(session, *options); };
}

} // namespace tintra::cli
