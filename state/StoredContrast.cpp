#include "state/StoredContrast.h"

#include "state/Record.h"

namespace tintra {

namespace {

constexpr std::string_view kColours = "colours";
constexpr std::string_view kNames = "names";

constexpr std::tuple kFields{
    Field{kColours, &StoredContrast::colours},
    Field{"text", &StoredContrast::text},
    Field{"ground", &StoredContrast::ground},
    Field{"size", &StoredContrast::size},
    Field{"weight", &StoredContrast::weight},
    Field{"specimen", &StoredContrast::specimen},
    Field{"target", &StoredContrast::target},
    Field{"wasOpen", &StoredContrast::wasOpen},
    Field{"mode", &StoredContrast::mode, Absent::standsIn},
    Field{kNames, &StoredContrast::names, Absent::standsIn},
    Field{"family", &StoredContrast::family},
    Field{"ladderFixesGround", &StoredContrast::ladderFixesGround, Absent::standsIn},
    Field{"matrixRowsAreText", &StoredContrast::matrixRowsAreText, Absent::standsIn},
};

/// A list leaves out what it does not understand; a name that is none keeps its place instead.
void keepNamesInStep(Json& json) {
    const auto names = json.find(kNames);
    if (names == json.end() || !names->is_array()) return;
    for (auto& name : *names)
        if (!name.is_string()) name = "";
}

} // namespace

std::string encodedContrast(const StoredContrast& contrast) {
    return jsonText(encoded(contrast, kFields));
}

std::optional<StoredContrast> decodedContrast(std::string_view text) {
    auto json = parsedJson(text);
    if (!json) return std::nullopt;
    keepNamesInStep(*json);
    auto contrast = decoded(*json, kFields);
    if (!contrast || contrast->colours.size() != json->find(kColours)->size()) return std::nullopt;
    return contrast;
}

} // namespace tintra
