#include "platform/Chance.h"
#include "platform/Dialogues.h"
#include "state/AppState.h"
#include "state/Errands.h"
#include "state/NoticeTexts.h"
#include "state/Preferences.h"
#include "state/SaveTexts.h"

#include <algorithm>
#include <utility>

namespace tintra {

struct AppState::Watching {
    /// Goes on when no location but `except` watches the folder; otherwise says so.
    static void whenUnwatched(AppState& state, const std::filesystem::path& folder,
                              std::optional<Uuid> except, std::function<void()> then);
    static void relocate(AppState& state, const Uuid& id, const std::filesystem::path& folder);
};

namespace {

/// Two paths to one folder become one.
std::filesystem::path canonicalFolder(const std::filesystem::path& folder) {
    std::error_code error;
    auto path = std::filesystem::weakly_canonical(folder, error);
    if (error) path = folder.lexically_normal();
    return path.has_filename() ? path : path.parent_path();
}

std::string nicknameOf(const std::filesystem::path& folder) {
    const auto name = folder.has_filename() ? folder.filename() : folder.parent_path().filename();
    return name.empty() ? folder.string() : name.string();
}

} // namespace

void AppState::addPaletteLocation() {
    context_.services.dialogues.askWhatToOpen(
        {OpenQuestion::Of::folder, std::string(SaveTexts::kChooseFolder), place()},
        whileAlive(alive_, [this](const std::optional<std::filesystem::path>& folder) {
            if (folder) addPaletteLocation(*folder);
        }));
}

void AppState::addPaletteLocation(const std::filesystem::path& folder) {
    Watching::whenUnwatched(*this, folder, {}, [this, folder] {
        auto locations = context_.preferences.paletteLocations.value();
        locations.push_back({.id = context_.services.chance.uuid(),
                             .nickname = nicknameOf(folder),
                             .path = folder,
                             .tag = {},
                             .bookmark = {}});
        context_.preferences.paletteLocations = std::move(locations);
    });
}

void AppState::Watching::whenUnwatched(AppState& state, const std::filesystem::path& folder,
                                       std::optional<Uuid> except, std::function<void()> then) {
    std::vector<std::filesystem::path> watched;
    for (const auto& location : state.context_.preferences.paletteLocations.value())
        if (location.id != except) watched.push_back(location.path);
    // A folder that has gone away with its server can take long to look at.
    inBackground(
        state.context_.services, state.alive_,
        [folder, watched = std::move(watched)] {
            const auto same = canonicalFolder(folder);
            return std::ranges::any_of(
                watched, [&](const auto& other) { return canonicalFolder(other) == same; });
        },
        [&state, folder, except, then = std::move(then)](bool isWatched) {
            // Another answer may have added it meanwhile.
            const auto& now = state.context_.preferences.paletteLocations.value();
            if (isWatched || std::ranges::any_of(now, [&](const auto& location) {
                    return location.id != except && location.path == folder;
                }))
                state.toast(std::string(SaveTexts::kAlreadyWatched), kBriefly);
            else
                then();
        });
}

void AppState::removePaletteLocation(const Uuid& id) {
    auto locations = context_.preferences.paletteLocations.value();
    std::erase_if(locations, [&](const auto& location) { return location.id == id; });
    context_.preferences.paletteLocations = std::move(locations);
}

void AppState::rechoosePaletteLocation(const Uuid& id) {
    const auto& locations = context_.preferences.paletteLocations.value();
    const auto found = std::ranges::find(locations, id, &PaletteLocation::id);
    if (found == locations.end()) return;
    context_.services.dialogues.askWhatToOpen(
        {OpenQuestion::Of::folder, SaveTexts::chooseAgainText(found->nickname), place()},
        whileAlive(alive_, [this, id](const std::optional<std::filesystem::path>& folder) {
            if (folder)
                Watching::whenUnwatched(*this, *folder, id, [this, id, folder] {
                    Watching::relocate(*this, id, *folder);
                });
        }));
}

void AppState::Watching::relocate(AppState& state, const Uuid& id,
                                  const std::filesystem::path& folder) {
    auto locations = state.context_.preferences.paletteLocations.value();
    const auto found = std::ranges::find(locations, id, &PaletteLocation::id);
    if (found == locations.end()) return;
    found->path = folder;
    found->bookmark.reset();
    state.context_.preferences.paletteLocations = std::move(locations);
}

} // namespace tintra
