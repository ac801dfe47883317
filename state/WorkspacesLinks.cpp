#include "platform/FileStamp.h"
#include "state/Bench.h"
#include "state/Workspaces.h"

#include <algorithm>
#include <string_view>
#include <system_error>

// What the windows know of each other, and the shared models of them.

namespace tintra {

namespace {

/// One name a file, also through links and for a file that does not exist yet.
std::filesystem::path canonicalPath(const std::filesystem::path& file) {
    std::error_code error;
    auto name = std::filesystem::weakly_canonical(file, error);
    return error ? file.lexically_normal() : name;
}

OpenPalettes::Sighting sighting(const AppState& state, std::size_t index) {
    const auto& swatch = state.swatches()[index];
    return {swatch.color, swatch.name,
            PaletteOrigin{state.currentPaletteName(), state.id(), swatch.id, index}};
}

/// RRGGBB of the plain sRGB bytes.
std::string identityWithoutAlpha(const WashColor& color) {
    return color.identity().substr(0, 6);
}

} // namespace

std::optional<OpenPalettes::Sighting> Workspaces::swatch(const Uuid& window,
                                                         const Uuid& swatch) const {
    const auto* owner = state(window);
    const auto index = owner != nullptr ? owner->indexOf(swatch) : std::nullopt;
    return index ? std::optional(sighting(*owner, *index)) : std::nullopt;
}

OpenPalettes::Absence Workspaces::absence(const Uuid& window) const {
    return states_.contains(window) ? Absence::gone : Absence::away;
}

std::optional<OpenPalettes::Sighting> Workspaces::swatch(const std::string& paletteName,
                                                         std::size_t index,
                                                         const WashColor& color) const {
    const auto wanted = identityWithoutAlpha(color);
    for (const auto& id : order_.value()) {
        const auto& owner = *state(id);
        if (owner.currentPaletteName() != paletteName || index >= owner.swatches().size()) continue;
        // The asker's colour was made opaque when it left the palette.
        if (identityWithoutAlpha(owner.swatches()[index].color) == wanted)
            return sighting(owner, index);
    }
    return std::nullopt;
}

bool Workspaces::holds(const WashColor& color) const {
    const bool withAlpha = !color.isOpaque();
    const auto key = [&](const WashColor& one) {
        return withAlpha ? one.identity() : identityWithoutAlpha(one);
    };
    const auto wanted = key(color);
    return std::ranges::any_of(states_, [&](const auto& entry) {
        return std::ranges::any_of(entry.second->swatches(), [&](const PaletteSwatch& swatch) {
            return key(swatch.color) == wanted;
        });
    });
}

std::vector<std::string> Workspaces::untitledNames(const Uuid& except) const {
    std::vector<std::string> names;
    for (const auto& id : order_.value()) {
        const auto& other = *state(id);
        if (id != except && !other.currentPaletteName()) names.push_back(other.untitledName());
    }
    return names;
}

FileVersion Workspaces::version(const std::filesystem::path& file) const {
    const auto saves = saveVersions_.find(canonicalPath(file));
    return {saves == saveVersions_.end() ? 0 : saves->second, fileStamp(file)};
}

FileVersion Workspaces::saved(const std::filesystem::path& file) {
    ++saveVersions_[canonicalPath(file)];
    return version(file);
}

void Workspaces::offerSaved(const AppState& by) {
    const auto url = by.currentPaletteURL();
    if (!url) return;
    const auto file = canonicalPath(*url);
    const auto shows = [&](const AppState& other) {
        const auto own = other.currentPaletteURL();
        return own && canonicalPath(*own) == file;
    };
    const auto windows = order_.value();
    for (const auto& id : windows) {
        auto* other = state(id);
        if (other != nullptr && other != &by && !other->paletteIsDirty() && shows(*other))
            other->takeSaved(by);
    }
}

void Workspaces::paletteChanged(const AppState&) {
    bench_->reconcileBenchProvenance();
}

PaletteUndoTarget* Workspaces::undoTarget(const Uuid& window) {
    return state(window);
}

} // namespace tintra
