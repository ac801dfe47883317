#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tintra {

/// What a start needs to know beside the windows' records.
struct LaunchState {
    bool libraryOpen = false;
    bool primaryWindowOpen = true;
    bool operator==(const LaunchState&) const = default;
};

/// The record as text, and a record read: a missing field keeps its initial value, and a text that
/// is no JSON object is no record. Pure.
std::string encodedLaunchState(const LaunchState& state);
std::optional<LaunchState> decodedLaunchState(std::string_view text);

} // namespace tintra
