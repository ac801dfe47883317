#include "ui/library/LibraryListing.h"

#include "palettes/PaletteStore.h"
#include "state/LibraryFiles.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tintra {
namespace {

using Group = PaletteEntry::Group;

LibraryPalette paletteOf(const PaletteEntry& entry) {
    return {.key = entry.key(),
            .name = entry.name,
            .hasFile = !entry.url.empty(),
            .count = entry.count,
            .modified = entry.modified,
            .state = entry.state,
            .canReveal = LibraryFiles::canReveal(entry),
            .canTrash = LibraryFiles::canTrash(entry),
            .palette = entry.palette,
            .searchedName = entry.searchedName,
            .sortKey = entry.sortKey};
}

bool belongsTo(const PaletteEntry& entry, const LibraryGroup& group) {
    if (entry.group != group.kind) return false;
    return group.kind != Group::location || entry.location == group.location->id;
}

std::vector<LibraryGroup> groupsOf(const PaletteStore& store,
                                   const std::vector<PaletteLocation>& locations, bool system) {
    std::vector<LibraryGroup> groups;
    for (const auto& location : locations)
        if (location.isEnabled)
            groups.push_back({.key = location.id.text(),
                              .kind = Group::location,
                              .location = location,
                              .folder = location.path,
                              .isOnline = store.isOnline(location.id)});
    groups.push_back({.key = "colourPicker",
                      .kind = Group::colourPicker,
                      .location = {},
                      .folder = store.colorsDirectory()});
    if (system)
        groups.push_back({.key = "system", .kind = Group::system, .location = {}, .folder = {}});
    return groups;
}

/// Searches and sorts the palettes of one content.
class Lister {
public:
    Lister(const LibraryContent& content, const LibraryQuestion& question)
        : content_(content), question_(question) {}

    void list(std::size_t group, LibraryListing& into) const {
        const auto& of = content_.groups[group];
        const auto first = into.finds.size();
        for (auto at = of.first; at < of.first + of.count; ++at)
            if (question_.query.isEmpty())
                into.finds.push_back({at, {}});
            else if (const auto hit = hitOf(question_.query, at))
                into.finds.push_back({at, *hit});
        if (!question_.query.isEmpty() && into.finds.size() == first) return;
        std::stable_sort(into.finds.begin() + static_cast<std::ptrdiff_t>(first), into.finds.end(),
                         [this](const LibraryFind& a, const LibraryFind& b) {
                             return comesBefore(rank(a), rank(b), question_.order);
                         });
        into.sections.push_back({group, first, into.finds.size() - first});
    }

    std::optional<WiderMatch> wider() const {
        return widerMatch(question_.text, question_.match, [this](const PaletteQuery& query) {
            std::size_t found = 0;
            for (std::size_t at = 0; at < content_.palettes.size(); ++at)
                if (hitOf(query, at)) ++found;
            return found;
        });
    }

private:
    std::optional<PaletteHit> hitOf(const PaletteQuery& query, std::size_t at) const {
        // A palette that has not been read yet is found by its name.
        static const CachedPalette kUnread;
        const auto& of = content_.palettes[at];
        return query.hit(of.searchedName, of.palette ? *of.palette : kUnread);
    }
    PaletteRank rank(const LibraryFind& find) const {
        const auto& of = content_.palettes[find.palette];
        return {of.sortKey, of.count, of.modified};
    }

    const LibraryContent& content_;
    const LibraryQuestion& question_;
};

} // namespace

std::string_view LibraryPalette::fileName() const {
    if (!hasFile) return {};
    return std::string_view(key).substr(key.rfind('/') + 1);
}

std::string_view LibraryPalette::extension() const {
    const auto file = fileName();
    const auto point = file.rfind('.');
    return point == std::string_view::npos || point == 0 ? std::string_view() : file.substr(point);
}

LibraryContent libraryContent(const PaletteStore& store,
                              const std::vector<PaletteLocation>& locations, bool system) {
    LibraryContent content;
    const auto& entries = store.available();
    content.palettes.reserve(entries.size());
    content.groups = groupsOf(store, locations, system);
    for (auto& group : content.groups) {
        group.first = content.palettes.size();
        // The palettes of a group stand side by side.
        auto at = std::ranges::find_if(entries,
                                       [&](const auto& entry) { return belongsTo(entry, group); });
        for (; at != entries.end() && belongsTo(*at, group); ++at) {
            if (at->state != PaletteEntry::State::loading) ++group.read;
            content.palettes.push_back(paletteOf(*at));
        }
        group.count = content.palettes.size() - group.first;
    }
    // The colour picker is no folder of the user's choice: while it is empty it is not shown.
    std::erase_if(content.groups, [](const LibraryGroup& group) {
        return group.kind != Group::location && group.count == 0;
    });
    return content;
}

LibraryListing libraryListing(std::shared_ptr<const LibraryContent> content,
                              const LibraryQuestion& question) {
    LibraryListing listing;
    listing.isSearch = !question.query.isEmpty();
    listing.color = question.query.color();
    const Lister lister(*content, question);
    for (std::size_t group = 0; group < content->groups.size(); ++group)
        lister.list(group, listing);
    if (listing.color && listing.finds.empty()) listing.wider = lister.wider();
    listing.content = std::move(content);
    return listing;
}

} // namespace tintra
