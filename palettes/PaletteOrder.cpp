#include "palettes/PaletteEntry.h"
#include "platform/Unicode.h"

#include <algorithm>
#include <compare>
#include <numeric>

namespace tintra {

namespace {

/// Entries that no scan made may lack their keys.
std::vector<std::string> missingKeys(const std::vector<PaletteEntry>& entries) {
    if (std::ranges::none_of(entries, [](const auto& e) { return e.sortKey.empty(); })) return {};
    std::vector<std::string> keys;
    keys.reserve(entries.size());
    for (const auto& entry : entries)
        keys.push_back(sortKey(entry.name));
    return keys;
}

} // namespace

bool comesBefore(const PaletteRank& a, const PaletteRank& b, const PaletteOrder& order) {
    const auto compared = [&](const PaletteRank& one, const PaletteRank& other) {
        if (order.byDate) return one.modified <=> other.modified;
        return order.byName ? one.sortKey <=> other.sortKey : one.count <=> other.count;
    };
    const std::strong_ordering first = order.ascending ? compared(a, b) : compared(b, a);
    return std::is_lt(std::is_eq(first) ? a.sortKey <=> b.sortKey : first);
}

std::vector<std::size_t> sortedPositions(const std::vector<PaletteEntry>& entries,
                                         const PaletteOrder& order) {
    const auto keys = missingKeys(entries);
    const auto rank = [&](std::size_t at) {
        const auto& entry = entries[at];
        return PaletteRank{keys.empty() ? entry.sortKey : keys[at], entry.count, entry.modified};
    };
    std::vector<std::size_t> positions(entries.size());
    std::iota(positions.begin(), positions.end(), std::size_t{0});
    std::ranges::stable_sort(positions, [&](std::size_t a, std::size_t b) {
        return comesBefore(rank(a), rank(b), order);
    });
    return positions;
}

std::vector<PaletteEntry> sorted(std::vector<PaletteEntry> entries, const PaletteOrder& order) {
    std::vector<PaletteEntry> result;
    result.reserve(entries.size());
    for (const auto position : sortedPositions(entries, order))
        result.push_back(std::move(entries[position]));
    return result;
}

} // namespace tintra
