#include "colour/Vision.h"

#include "cli/ColourArguments.h"
#include "cli/Commands.h"
#include "cli/Json.h"

namespace tintra::cli {

namespace {

struct VisionOptions {
    std::string kind;
    std::vector<std::string> colours;
};

void see(Session& session, const VisionOptions& options) {
    const auto kind = vision(options.kind).value_or(Vision::typical);
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
    declaration.positional("COLOUR", options->colours, kColourHelp);
    return [options](Session& session) { see(session, *options); };
}

} // namespace tintra::cli
