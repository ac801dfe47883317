#include "cli/ColourArguments.h"
#include "cli/Commands.h"
#include "cli/Json.h"
#include "colour/Clamp.h"
#include "mix/TintraMix.h"

namespace tintra::cli {

namespace {

struct MixOptions {
    std::string a, b;
    double ratio = 0.5;
    double white = 0;
    double black = 0;
    int steps = 0; ///< 0: one mix
};

/// Paint is opaque and lies within sRGB.
TintraMix::SRGB paintOf(const WashColor& colour) {
    return {clampedUnit(colour.r), clampedUnit(colour.g), clampedUnit(colour.b)};
}

std::vector<TintraMix::SRGB> mixes(const WashColor& a, const WashColor& b,
                                   const MixOptions& options) {
    const double white = clampedUnit(options.white), black = clampedUnit(options.black);
    if (options.steps > 0)
        return TintraMix::ramp(paintOf(a), paintOf(b), white, black, options.steps);
    return {TintraMix::mix(paintOf(a), paintOf(b), clampedUnit(options.ratio), white, black)};
}

void mix(Session& session, const MixOptions& options) {
    const auto a = colourArgument(session, options.a);
    const auto b = colourArgument(session, options.b);
    if (!a || !b) return;
    Json colours = Json::array();
    for (const auto& paint : mixes(*a, *b, options)) {
        const WashColor colour{paint.r, paint.g, paint.b, 1};
        if (session.json())
            colours.push_back(colourJson(colour));
        else
            session.printLine(labelled(session, colour));
    }
    if (session.json()) session.printJson({{"colours", std::move(colours)}});
}

} // namespace

Action declareMix(Declaration& declaration) {
    const auto options = std::make_shared<MixOptions>();
    declaration.positional("A", options->a, kColourHelp);
    declaration.positional("B", options->b, "The other colour");
    declaration.option("--ratio", options->ratio, "T", "Share of B, taken as 0 to 1 (default 0.5)");
    declaration.option("--white", options->white, "W",
                       "White paint added, taken as 0 to 1 (default 0)");
    declaration.option("--black", options->black, "B",
                       "Black paint added, taken as 0 to 1 (default 0)");
    declaration.number("--steps", options->steps, 1, 256, "N",
                       "A ramp of so many mixes from A to B, 1 to 256");
    return [options](Session& session) { mix(session, *options); };
}

} // namespace tintra::cli
