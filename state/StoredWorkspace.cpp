#include "state/StoredWorkspace.h"

#include "state/PaletteSwatch.h"
#include "state/Record.h"

#include <algorithm>

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
};

/// Names in step with the colours, from a list or from a map by position or by swatch.
std::vector<std::string> namesIn(const Json& json, std::size_t count,
                                 const std::optional<std::vector<Uuid>>& ids) {
    std::vector<std::string> names(count);
    if (json.is_array())
        for (std::size_t i = 0; i < std::min(count, json.size()); ++i)
            names[i] = Codec<std::string>::decode(json[i]).value_or("");
    if (!json.is_object()) return names;
    for (std::size_t i = 0; i < count; ++i) {
        auto found = json.find(std::to_string(i));
        if (found == json.end() && ids) found = json.find((*ids)[i].text());
        if (found != json.end()) names[i] = Codec<std::string>::decode(*found).value_or("");
    }
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
    const auto palette = json.find("customPalette");
    if (palette->size() != workspace->customPalette.size()) return std::nullopt;
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
