#include "state/StoredLaunchState.h"

#include "state/Record.h"

namespace tintra {

namespace {

constexpr std::tuple kFields{
    Field{"libraryOpen", &LaunchState::libraryOpen, Absent::standsIn},
    Field{"primaryWindowOpen", &LaunchState::primaryWindowOpen, Absent::standsIn},
};

} // namespace

std::string encodedLaunchState(const LaunchState& state) {
    return jsonText(encoded(state, kFields));
}

std::optional<LaunchState> decodedLaunchState(std::string_view text) {
    const auto json = parsedJson(text);
    return json ? decoded(*json, kFields) : std::nullopt;
}

} // namespace tintra
