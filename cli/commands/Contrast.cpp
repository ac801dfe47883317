#include "colour/Contrast.h"

#include "cli/ColourArguments.h"
#include "cli/Commands.h"
#include "cli/Json.h"
#include "colour/ContrastTarget.h"
#include "platform/Number.h"

#include <fmt/format.h>

#include <cmath>

namespace tintra::cli {

namespace {

using namespace Contrast;

/// A matrix compares as many colours as the contrast window does.
constexpr std::size_t kMatrixMost = 10;

struct ContrastOptions {
    std::vector<std::string> colours;
    double size = 16;
    int weight = 400;
    std::string reach;
    bool matrix = false;
};

/// A text on a ground, and how large the text is.
struct Pair {
    WashColor text, ground;
    LargeText large;
};

Json proposalJson(const std::optional<ReachProposal>& proposal) {
    if (!proposal) return {};
    return {{"hex", hexText(proposal->colour)},
            {"title", proposal->title},
            {"ratio", proposal->ratio},
            {"distance", proposal->distance},
            {"eased", proposal->eased}};
}

Json reachJson(const ReachReport& report) {
    return {{"target", rawValue(report.target)},
            {"need", report.need},
            {"text", proposalJson(report.text)},
            {"ground", proposalJson(report.ground)},
            {"message", report.message.empty() ? Json() : Json(report.message)}};
}

Json pairJson(const Pair& pair) {
    const double ratio = wcagRatio(pair.text, pair.ground);
    const double lc = apcaLc(pair.text, pair.ground);
    return {{"wcag",
             {{"ratio", ratio},
              {"shown", ratioText(ratio)},
              {"grade", caseName(wcagGrade(ratio, pair.large))},
              {"verdict", verdict(ratio, pair.large)}}},
            {"apca", {{"lc", lc}, {"shown", lcText(lc)}, {"grade", caseName(apcaGrade(lc))}}},
            {"largeText", pair.large == LargeText::yes}};
}

/// The words of the pair in its own colours, where blocks are shown.
std::string specimen(const Session& session, const Pair& pair) {
    if (!session.showsBlocks()) return {};
    const auto text = swatchBytes(composited(pair.text, pair.ground));
    const auto ground = swatchBytes(pair.ground);
    return fmt::format("\x1b[38;2;{};{};{};48;2;{};{};{}m  Text on ground  \x1b[0m\n", text.r,
                       text.g, text.b, ground.r, ground.g, ground.b);
}

void printProposal(Session& session, const std::optional<ReachProposal>& proposal) {
    if (!proposal) return;
    session.printLine(fmt::format("  {}: {} ({}:1, lightness by {}{})", proposal->title,
                                  labelled(session, proposal->colour), ratioText(proposal->ratio),
                                  fixed(proposal->distance, 3), proposal->eased ? ", eased" : ""));
}

void printReach(Session& session, const ReachReport& report, LargeText large) {
    session.printLine(title(report.target, large));
    printProposal(session, report.text);
    printProposal(session, report.ground);
    if (!report.message.empty()) session.printLine("  " + report.message);
}

void printPair(Session& session, const Pair& pair) {
    const double ratio = wcagRatio(pair.text, pair.ground);
    const double lc = apcaLc(pair.text, pair.ground);
    session.print(specimen(session, pair));
    session.printLine(fmt::format("WCAG 2.2  {}:1  {}", ratioText(ratio),
                                  caseName(wcagGrade(ratio, pair.large))));
    session.printLine(fmt::format("APCA      Lc {}  {}", lcText(lc), caseName(apcaGrade(lc))));
    session.printLine(verdict(ratio, pair.large));
}

void pair(Session& session, const ContrastOptions& options) {
    if (options.colours.size() != 2) throw UsageError{"contrast needs a TEXT and a GROUND colour"};
    const auto colours = colourArguments(session, options.colours);
    if (colours.size() != 2) return;
    const Pair pair{colours[0], colours[1], isLargeText(options.size, options.weight)};
    auto json = session.json() ? pairJson(pair) : Json();
    if (!session.json()) printPair(session, pair);
    if (const auto chosen = target(options.reach)) {
        const auto report = reachReport(pair.text, pair.ground, *chosen, pair.large);
        if (session.json())
            json["reach"] = reachJson(report);
        else
            printReach(session, report, pair.large);
    }
    if (session.json()) session.printJson(json);
}

/// A figure a cell, rows are text and columns grounds.
using Measure = double (*)(const WashColor&, const WashColor&);

Json matrixJson(const std::vector<WashColor>& colours, Measure measure) {
    Json rows = Json::array();
    for (const auto& text : colours) {
        Json row = Json::array();
        for (const auto& ground : colours)
            row.push_back(measure(text, ground));
        rows.push_back(std::move(row));
    }
    return rows;
}

void printMatrix(Session& session, std::string_view title, const std::vector<WashColor>& colours,
                 std::string (*figure)(const WashColor&, const WashColor&)) {
    session.print(fmt::format("{:<10}", title));
    for (const auto& ground : colours)
        session.print(fmt::format(" {:>9}", hexText(ground)));
    session.printLine("");
    for (const auto& text : colours) {
        session.print(fmt::format("{:<10}", hexText(text)));
        for (const auto& ground : colours)
            session.print(fmt::format(" {:>9}", figure(text, ground)));
        session.printLine("");
    }
}

void matrix(Session& session, const ContrastOptions& options) {
    if (!options.reach.empty()) throw UsageError{"--reach goes with one pair, not with --matrix"};
    auto colours = colourArguments(session, options.colours);
    if (colours.size() > kMatrixMost) {
        session.notice("contrast", "the matrix shows the first ten colours");
        colours.resize(kMatrixMost);
    }
    if (session.json()) {
        session.printJson({{"colours", hexesJson(colours)},
                           {"wcag", matrixJson(colours, wcagRatio)},
                           {"apca", matrixJson(colours, apcaLc)}});
        return;
    }
    printMatrix(session, "WCAG 2.2", colours, [](const auto& text, const auto& ground) {
        return ratioText(wcagRatio(text, ground));
    });
    printMatrix(session, "APCA Lc", colours,
                [](const auto& text, const auto& ground) { return lcText(apcaLc(text, ground)); });
}

std::vector<std::string> targets() {
    std::vector<std::string> texts;
    for (const auto target : allTargets())
        texts.emplace_back(rawValue(target));
    return texts;
}

} // namespace

Action declareContrast(Declaration& declaration) {
    const auto options = std::make_shared<ContrastOptions>();
    declaration.positional("COLOUR", options->colours,
                           "The text and the ground; with --matrix any number of colours");
    declaration.flag("--matrix", options->matrix, "Every pair of at most the first ten colours");
    declaration.option("--size", options->size, "PX", "Size of the text (default 16)")
        ->check(CLI::Validator(CLI::PositiveNumber).description(""));
    declaration.number("--weight", options->weight, 1, 1000, "W",
                       "Weight of the text, 1 to 1000 (default 400)");
    declaration.choice("--reach", options->reach, targets(), "LEVEL",
                       "Propose the nearest lightness that reaches a level");
    return [options](Session& session) {
        if (options->matrix)
            matrix(session, *options);
        else
            pair(session, *options);
    };
}

} // namespace tintra::cli
