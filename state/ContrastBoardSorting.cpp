#include "colour/Clamp.h"
#include "state/ContrastBoard.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace tintra {

namespace {

using Entry = ContrastBoard::Entry;

/// Relative luminance as WCAG measures it, of the colour clamped into sRGB.
double luminanceOf(const Entry& entry) {
    const auto& color = entry.color;
    return WashColor{clampedUnit(color.r), clampedUnit(color.g), clampedUnit(color.b)}.luminance();
}

std::vector<Uuid> orderOf(const std::vector<Entry>& entries) {
    std::vector<Uuid> order;
    order.reserve(entries.size());
    for (const auto& entry : entries)
        order.push_back(entry.id);
    return order;
}

} // namespace

std::optional<std::vector<Uuid>> ContrastBoard::sortByLightness(bool lightestFirst,
                                                                bool withinMatrix) {
    auto to = content_.value();
    const std::span all(to.entries);
    const auto sorted = withinMatrix ? all.first(std::min(all.size(), kMatrixSize)) : all;
    if (lightestFirst)
        std::ranges::stable_sort(sorted, std::greater{}, luminanceOf);
    else
        std::ranges::stable_sort(sorted, std::less{}, luminanceOf);
    if (to.entries == entries()) return std::nullopt;
    auto before = orderOf(entries());
    setContent(std::move(to));
    return before;
}

void ContrastBoard::restoreOrder(std::span<const Uuid> order) {
    auto to = content_.value();
    std::ranges::stable_sort(to.entries, std::less{}, [order](const Entry& entry) {
        return std::ranges::find(order, entry.id) - order.begin();
    });
    setContent(std::move(to));
}

bool ContrastBoard::isDarkToLight() const {
    return std::ranges::is_sorted(entries(), std::less{}, luminanceOf);
}

} // namespace tintra
