#include "state/PaletteLocations.h"

#include "platform/Chance.h"
#include "platform/Dialogues.h"
#include "platform/FileBrowser.h"
#include "platform/Toasts.h"
#include "state/Errands.h"
#include "state/NoticeTexts.h"
#include "state/Preferences.h"
#include "state/SaveTexts.h"
#include "state/SwatchName.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

namespace tintra {
namespace {

constexpr std::string_view kNicknameNote = "It heads the folder’s palettes in the Library.";
constexpr std::string_view kTagNote = "A short label beside the nickname.";

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

PaletteLocations::PaletteLocations(Services& services, Preferences& preferences, ToastPlace place)
    : services_(services), preferences_(preferences), place_(place) {}

void PaletteLocations::add() {
    services_.dialogues.askWhatToOpen(
        {OpenQuestion::Of::folder, std::string(SaveTexts::kChooseFolder), place_},
        whileAlive(alive_, [this](const std::optional<std::filesystem::path>& folder) {
            if (folder) add(*folder);
        }));
}

void PaletteLocations::add(const std::filesystem::path& folder) {
    whenUnwatched(folder, {}, [this, folder] { append(folder); });
}

void PaletteLocations::addFolders(std::vector<std::filesystem::path> among) {
    struct Found {
        std::vector<std::filesystem::path> folders;
        std::string missing; ///< the name of one that is not there
    };
    inBackground(
        services_, alive_,
        [among = std::move(among)] {
            Found found;
            std::error_code ignored;
            for (const auto& file : among)
                if (std::filesystem::is_directory(file, ignored))
                    found.folders.push_back(file);
                else if (!std::filesystem::exists(file, ignored))
                    found.missing = nicknameOf(file);
            return found;
        },
        [this](const Found& found) {
            for (const auto& folder : found.folders)
                add(folder);
            if (!found.folders.empty()) return;
            services_.toasts.show(found.missing.empty() ? std::string(SaveTexts::kChooseFolder)
                                                        : SaveTexts::unreadableText(found.missing),
                                  kForExplaining, {}, place_);
        });
}

void PaletteLocations::append(const std::filesystem::path& folder) {
    auto locations = preferences_.paletteLocations.value();
    locations.push_back({.id = services_.chance.uuid(),
                         .nickname = nicknameOf(folder),
                         .path = folder,
                         .tag = {},
                         .bookmark = {}});
    preferences_.paletteLocations = std::move(locations);
}

void PaletteLocations::whenUnwatched(const std::filesystem::path& folder,
                                     std::optional<Uuid> except, std::function<void()> then) {
    std::vector<std::filesystem::path> watched;
    for (const auto& location : preferences_.paletteLocations.value())
        if (location.id != except) watched.push_back(location.path);
    // A folder that has gone away with its server can take long to look at.
    inBackground(
        services_, alive_,
        [folder, watched = std::move(watched)] {
            const auto same = canonicalFolder(folder);
            return std::ranges::any_of(
                watched, [&](const auto& other) { return canonicalFolder(other) == same; });
        },
        [this, folder, except, then = std::move(then)](bool isWatched) {
            // Another answer may have added it meanwhile.
            const auto& now = preferences_.paletteLocations.value();
            if (isWatched || std::ranges::any_of(now, [&](const auto& location) {
                    return location.id != except && location.path == folder;
                }))
                services_.toasts.show(std::string(SaveTexts::kAlreadyWatched), kBriefly, {},
                                      place_);
            else
                then();
        });
}

void PaletteLocations::remove(const Uuid& id) {
    auto locations = preferences_.paletteLocations.value();
    std::erase_if(locations, [&](const auto& location) { return location.id == id; });
    preferences_.paletteLocations = std::move(locations);
}

void PaletteLocations::rechoose(const Uuid& id) {
    const auto found = location(id);
    if (!found) return;
    services_.dialogues.askWhatToOpen(
        {OpenQuestion::Of::folder, SaveTexts::chooseAgainText(found->nickname), place_},
        whileAlive(alive_, [this, id](const std::optional<std::filesystem::path>& folder) {
            if (!folder) return;
            whenUnwatched(*folder, id, [this, id, folder] {
                change(id, [&](PaletteLocation& moved) {
                    moved.path = *folder;
                    moved.bookmark.reset();
                });
            });
        }));
}

void PaletteLocations::rename(const Uuid& id) {
    const auto found = location(id);
    if (!found) return;
    services_.dialogues.askName(
        {SaveTexts::renameTitle(found->nickname),
         std::string(kNicknameNote),
         found->nickname,
         std::string(SaveTexts::kRename),
         {},
         place_},
        whileAlive(alive_, [this, id](const std::optional<NameAnswer>& given) {
            const auto nickname = given ? swatchNameFrom(given->name) : std::nullopt;
            if (nickname) change(id, [&](PaletteLocation& named) { named.nickname = *nickname; });
        }));
}

void PaletteLocations::tag(const Uuid& id) {
    const auto found = location(id);
    if (!found) return;
    services_.dialogues.askName(
        {fmt::format("Tag “{}” with", found->nickname),
         std::string(kTagNote),
         found->tag.value_or(std::string()),
         "Tag",
         {},
         place_},
        whileAlive(alive_, [this, id](const std::optional<NameAnswer>& given) {
            const auto text = given ? swatchNameFrom(given->name) : std::nullopt;
            if (text) change(id, [&](PaletteLocation& tagged) { tagged.tag = *text; });
        }));
}

void PaletteLocations::untag(const Uuid& id) {
    change(id, [](PaletteLocation& location) { location.tag.reset(); });
}

void PaletteLocations::setEnabled(const Uuid& id, bool enabled) {
    change(id, [&](PaletteLocation& location) { location.isEnabled = enabled; });
}

void PaletteLocations::setIncludesStylesheets(const Uuid& id, bool includes) {
    change(id, [&](PaletteLocation& location) { location.includesStylesheets = includes; });
}

void PaletteLocations::reveal(const Uuid& id) const {
    if (const auto found = location(id)) services_.fileBrowser.reveal(found->path);
}

std::optional<PaletteLocation> PaletteLocations::location(const Uuid& id) const {
    const auto& locations = preferences_.paletteLocations.value();
    const auto found = std::ranges::find(locations, id, &PaletteLocation::id);
    return found == locations.end() ? std::nullopt : std::optional(*found);
}

void PaletteLocations::change(const Uuid& id, const std::function<void(PaletteLocation&)>& by) {
    auto locations = preferences_.paletteLocations.value();
    const auto found = std::ranges::find(locations, id, &PaletteLocation::id);
    if (found == locations.end()) return;
    by(*found);
    preferences_.paletteLocations = std::move(locations);
}

} // namespace tintra
