#include "cli/Commands.h"
#include "cli/FolderInput.h"
#include "cli/Json.h"
#include "palettes/PaletteSearch.h"
#include "platform/Number.h"
#include "platform/Unicode.h"

#include <fmt/format.h>

#include <algorithm>
#include <chrono>

namespace tintra::cli {

namespace {

struct LibraryOptions {
    std::vector<std::string> folders;
    bool stylesheets = false;
    std::string find, match{rawValue(ColourMatch::close)}, sort = "name";
    bool descending = false;
};

/// A palette that is listed, and why it was found.
struct Found {
    std::size_t position;
    std::optional<PaletteHit> hit;
};

PaletteOrder orderOf(const LibraryOptions& options) {
    return {options.sort == "name", options.sort == "date", !options.descending};
}

std::vector<Found> found(const FolderPalettes& palettes, const LibraryOptions& options) {
    const PaletteQuery query(options.find, *colourMatch(options.match));
    std::vector<Found> list;
    for (const auto position : sortedPositions(palettes.entries, orderOf(options))) {
        const auto& entry = palettes.entries[position];
        const auto hit = query.hit(entry.searchedName, *entry.palette);
        if (hit || query.isEmpty()) list.push_back({position, hit});
    }
    return list;
}

/// In ISO 8601, UTC.
std::string dateText(std::chrono::system_clock::time_point date) {
    namespace chrono = std::chrono;
    const auto day = chrono::floor<chrono::days>(date);
    const chrono::year_month_day calendar(day);
    const chrono::hh_mm_ss time(chrono::floor<chrono::seconds>(date) - day);
    return fmt::format("{:04}-{:02}-{:02}T{:02}:{:02}:{:02}Z", static_cast<int>(calendar.year()),
                       static_cast<unsigned>(calendar.month()),
                       static_cast<unsigned>(calendar.day()), time.hours().count(),
                       time.minutes().count(), time.seconds().count());
}

const PaletteFile::Swatch* swatchOf(const PaletteEntry& entry, const PaletteHit& hit) {
    return hit.index ? &entry.palette->swatches[*hit.index] : nullptr;
}

Json hitJson(const PaletteEntry& entry, const std::optional<PaletteHit>& hit) {
    if (!hit) return nullptr;
    Json swatch = nullptr;
    if (const auto* held = swatchOf(entry, *hit)) {
        swatch = colourJson(held->color);
        swatch["name"] = textOrNull(held->name);
    }
    return {{"index", hit->index ? Json(*hit->index) : Json(nullptr)},
            {"distance", hit->distance ? Json(*hit->distance) : Json(nullptr)},
            {"swatch", std::move(swatch)}};
}

void printJson(Session& session, const FolderPalettes& palettes, const std::vector<Found>& list) {
    Json all = Json::array();
    for (const auto& [position, hit] : list) {
        const auto& entry = palettes.entries[position];
        all.push_back({{"name", entry.name},
                       {"path", entry.url.string()},
                       {"location", palettes.folders[position]},
                       {"count", entry.count},
                       {"modified", dateText(entry.modified)},
                       {"match", hitJson(entry, hit)}});
    }
    session.printJson({{"palettes", std::move(all)}});
}

std::string hitText(const Session& session, const PaletteEntry& entry, const PaletteHit& hit,
                    ColourMatch match) {
    const auto* swatch = swatchOf(entry, hit);
    if (swatch == nullptr) return {};
    auto text = "  " + labelled(session, swatch->color);
    if (swatch->name) text += " " + controlsToSpaces(*swatch->name);
    if (!hit.distance) return text;
    return text + (match == ColourMatch::hue ? fmt::format("  {}°", fixed(*hit.distance, 1))
                                             : fmt::format("  ΔE {}", fixed(*hit.distance, 2)));
}

void printLines(Session& session, const FolderPalettes& palettes, const std::vector<Found>& list,
                ColourMatch match) {
    for (const auto& [position, hit] : list) {
        const auto& entry = palettes.entries[position];
        session.printLine(fmt::format("{:>5}  {}  {}{}", entry.count, controlsToSpaces(entry.name),
                                      controlsToSpaces(entry.url.string()),
                                      hit ? hitText(session, entry, *hit, match) : ""));
    }
}

/// Says what the next wider match would find.
void reportNothing(Session& session, const FolderPalettes& palettes,
                   const LibraryOptions& options) {
    const auto match = *colourMatch(options.match);
    const auto subject = fmt::format("“{}”", controlsToSpaces(options.find));
    if (!PaletteQuery(options.find, match).color())
        return session.failure(subject, "no palette and no swatch has it in its name");
    const auto wider = widerMatch(options.find, match, [&](const PaletteQuery& query) {
        return static_cast<std::size_t>(
            std::ranges::count_if(palettes.entries, [&](const PaletteEntry& entry) {
                return query.hit(entry.searchedName, *entry.palette).has_value();
            }));
    });
    auto why = fmt::format("no palette holds it ({})", explanation(match));
    if (wider)
        why += fmt::format("; --match {} would find {}", rawValue(wider->match), wider->count);
    session.failure(subject, why);
}

void library(Session& session, const LibraryOptions& options) {
    const auto palettes =
        readFolders(session, options.folders,
                    options.stylesheets ? Stylesheets::include : Stylesheets::leaveOut);
    const auto list = found(palettes, options);
    if (session.json())
        printJson(session, palettes, list);
    else
        printLines(session, palettes, list, *colourMatch(options.match));
    if (palettes.entries.empty() && session.status() == ExitStatus::done)
        session.failure(options.folders.front(), "No palettes found");
    else if (list.empty() && !palettes.entries.empty())
        reportNothing(session, palettes, options);
}

std::vector<std::string> matchChoices() {
    std::vector<std::string> choices;
    for (const auto match : allColourMatches())
        choices.emplace_back(rawValue(match));
    return choices;
}

} // namespace

Action declareLibrary(Declaration& declaration) {
    const auto options = std::make_shared<LibraryOptions>();
    declaration.positional("FOLDER", options->folders, "A folder of palette files", Takes::folder);
    declaration.flag("--stylesheets", options->stylesheets,
                     "Also list stylesheets whose variables hold colours");
    declaration.option("--find", options->find, "TEXT",
                       "List what has a colour, or a name (of the palette or of a swatch)");
    declaration.choice("--match", options->match, matchChoices(), "MATCH",
                       "How near a colour must be: within ΔE 1, within ΔE 3 (the default), or "
                       "within 10° of hue");
    declaration.choice("--sort", options->sort, {"name", "size", "date"}, "ORDER",
                       "By name (the default), number of colours or date of change");
    declaration.flag("--descending", options->descending, "The other way round");
    return [options](Session& session) { library(session, *options); };
}

} // namespace tintra::cli
