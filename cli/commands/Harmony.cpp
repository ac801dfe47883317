#include "colour/Harmony.h"

#include "cli/ColourArguments.h"
#include "cli/Commands.h"
#include "cli/Json.h"

#include <fmt/format.h>

namespace tintra::cli {

namespace {

/// As many colours as a palette holds.
constexpr int kMost = 256;

struct HarmonyOptions {
    std::string mode, first, last, space = "sRGB";
    int count = 5;
    int shades = 1;
};

template <typename Values>
std::vector<std::string> rawValues(const Values& values) {
    std::vector<std::string> texts;
    for (const auto value : values)
        texts.emplace_back(rawValue(value));
    return texts;
}

bool needsLast(HarmonyMode mode, int shades) {
    return mode == HarmonyMode::ramp || (offsets(mode, 3) && shades > 1);
}

Json bandsJson(const std::vector<Harmony::Band>& bands) {
    Json list = Json::array();
    for (const auto& band : bands) {
        Json colours = Json::array();
        for (const auto& colour : band)
            colours.push_back(colourJson(colour));
        list.push_back(std::move(colours));
    }
    return list;
}

void printBands(Session& session, const std::vector<Harmony::Band>& bands) {
    for (std::size_t i = 0; i < bands.size(); ++i) {
        if (i > 0) session.printLine("");
        for (const auto& colour : bands[i])
            session.printLine(labelled(session, colour));
    }
}

void harmony(Session& session, const HarmonyOptions& options) {
    const auto mode = harmonyMode(options.mode);
    const auto space = blendSpace(options.space);
    if (!mode || !space) throw UsageError{"no such mode or blend space"};
    if (options.last.empty() && needsLast(*mode, options.shades))
        throw UsageError{fmt::format("{} needs a LAST colour here", options.mode)};

    const auto first = colourArgument(session, options.first);
    const auto last = options.last.empty() ? first : colourArgument(session, options.last);
    if (!first || !last) return;
    const auto bands = Harmony::bands(*first, *last, *mode, options.count, options.shades, *space);
    if (session.json())
        session.printJson(
            {{"mode", options.mode}, {"space", options.space}, {"bands", bandsJson(bands)}});
    else
        printBands(session, bands);
}

} // namespace

Action declareHarmony(Declaration& declaration) {
    const auto options = std::make_shared<HarmonyOptions>();
    declaration.positionalChoice("MODE", options->mode, rawValues(allHarmonyModes()),
                                 "How the bands are made");
    declaration.positional("FIRST", options->first, "The first or only seed colour");
    declaration.optional(declaration.positional("LAST", options->last,
                                                "The last seed: the end of a ramp and of shades"));
    declaration.number("--count", options->count, 1, kMost, "N",
                       "Steps or hues, 1 to 256 (default 5)");
    declaration.number("--shades", options->shades, 1, kMost, "N",
                       "Colours from each hue to LAST, 1 to 256 (default 1)");
    declaration.choice("--space", options->space, rawValues(allBlendSpaces()), "SPACE",
                       "Where colours blend and hues turn (default sRGB)");
    return [options](Session& session) { harmony(session, *options); };
}

} // namespace tintra::cli
