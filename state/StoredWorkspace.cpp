#include "state/StoredWorkspace.h"

#include "state/PaletteSwatch.h"
#include "state/Record.h"

#include <algorithm>
#include <charconv>

namespace tintra {
namespace {

// What the steppers of a window allow, with room for other versions of the program.
constexpr int kMostSteps = 64, kMostShades = 64;

// The lists of colours and names are in step, so they are read apart from the table: one element
// that is not understood must not move the others.
constexpr std::tuple kFields{
    Field{"first", &StoredWorkspace::first},
    Field{"last", &StoredWorkspace::last},
    Field{"stepCount", &StoredWorkspace::stepCount, Absent::standsIn},
    Field{"blendSpace", &StoredWorkspace::blendSpace, Absent::standsIn},
    Field{"mode", &StoredWorkspace::mode, Absent::standsIn},
    Field{"shadesPerAnchor", &StoredWorkspace::shadesPerAnchor, Absent::standsIn},
    Field{"customPalette", &StoredWorkspace::customPalette},
    Field{"customPaletteNames", &StoredWorkspace::customPaletteNames, Absent::standsIn},
    Field{"paletteIsDirty", &StoredWorkspace::paletteIsDirty, Absent::standsIn},
    Field{"currentPaletteName", &StoredWorkspace::currentPaletteName},
    Field{"currentPalettePath", &StoredWorkspace::currentPalettePath},
    Field{"isCollapsed", &StoredWorkspace::isCollapsed, Absent::standsIn},
    Field{"frame", &StoredWorkspace::frame},
    Field{"modeSizes", &StoredWorkspace::modeSizes, Absent::standsIn},
    Field{"compactOrientation", &StoredWorkspace::compactOrientation},
    Field{"selectedSwatch", &StoredWorkspace::selectedSwatch},
    Field{"id", &StoredWorkspace::id},
    Field{"swatchIDs", &StoredWorkspace::swatchIDs},
    Field{"fileStamp", &StoredWorkspace::fileStamp},
};

/// The place of a swatch that a key names by position or by identifier.
std::optional<std::size_t> placeOf(const std::string& key, std::size_t count,
                                   const std::optional<std::vector<Uuid>>& ids) {
    std::size_t at = count;
    const auto* const end = key.data() + key.size();
    if (const auto id = Uuid::fromText(key); id && ids)
        at = static_cast<std::size_t>(std::find(ids->begin(), ids->end(), *id) - ids->begin());
    else if (std::from_chars(key.data(), end, at).ptr != end)
        return std::nullopt;
    return at < count ? std::optional(at) : std::nullopt;
}

/// Names in step with the colours, from a list or a map.
std::vector<std::string> namesIn(const Json& json, std::size_t count,
                                 const std::optional<std::vector<Uuid>>& ids) {
    std::vector<std::string> names(count);
    if (json.is_array())
        for (std::size_t i = 0; i < std::min(count, json.size()); ++i)
            names[i] = Codec<std::string>::decode(json[i]).value_or("");
    if (!json.is_object()) return names;
    for (const auto& [key, name] : json.items())
        if (const auto at = placeOf(key, count, ids))
            names[*at] = Codec<std::string>::decode(name).value_or("");
    return names;
}

/// What the table read, brought into the ranges that a window can show.
void limit(StoredWorkspace& workspace) {
    workspace.stepCount = std::clamp(workspace.stepCount, 1, kMostSteps);
    workspace.shadesPerAnchor = std::clamp(workspace.shadesPerAnchor, 1, kMostShades);
    if (workspace.swatchIDs && workspace.swatchIDs->size() != workspace.customPalette.size())
        workspace.swatchIDs.reset();
    if (workspace.customPalette.size() > kPaletteCapacity) {
        workspace.customPalette.resize(kPaletteCapacity);
        if (workspace.swatchIDs) workspace.swatchIDs->resize(kPaletteCapacity);
    }
    if (workspace.selectedSwatch && *workspace.selectedSwatch >= workspace.customPalette.size())
        workspace.selectedSwatch.reset();
}

std::optional<StoredWorkspace> workspaceIn(const Json& json) {
    auto workspace = decoded(json, kFields);
    if (!workspace) return std::nullopt;
    const auto isWhole = [&](const char* key, std::size_t count) {
        return json.at(key).size() == count;
    };
    if (!isWhole("customPalette", workspace->customPalette.size())) return std::nullopt;
    if (workspace->swatchIDs && !isWhole("swatchIDs", workspace->swatchIDs->size()))
        workspace->swatchIDs.reset();
    limit(*workspace);
    const auto names = json.find("customPaletteNames");
    workspace->customPaletteNames = namesIn(names == json.end() ? Json() : *names,
                                            workspace->customPalette.size(), workspace->swatchIDs);
    return workspace;
}

} // namespace

std::string encodedWorkspace(const StoredWorkspace& workspace) {
    return jsonText(encoded(workspace, kFields));
}

std::optional<StoredWorkspace> decodedWorkspace(std::string_view text) {
    const auto json = parsedJson(text);
    return json ? workspaceIn(*json) : std::nullopt;
}

std::string encodedWorkspaces(const std::vector<StoredWorkspace>& workspaces) {
    Json json = Json::array();
    for (const auto& workspace : workspaces)
        json.push_back(encoded(workspace, kFields));
    return jsonText(json);
}

std::optional<std::vector<StoredWorkspace>> decodedWorkspaces(std::string_view text) {
    const auto json = parsedJson(text);
    if (!json || !json->is_array()) return std::nullopt;
    std::vector<StoredWorkspace> workspaces;
    for (const auto& element : *json)
        if (auto workspace = workspaceIn(element)) workspaces.push_back(*std::move(workspace));
    return workspaces;
}

} // namespace tintra
