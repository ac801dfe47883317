#include "state/Bench.h"
#include "state/NoticeTexts.h"

#include <algorithm>
#include <set>
#include <string>

namespace tintra {
namespace {

/// The palette window that asks; none for a colour from elsewhere.
std::optional<Uuid> asker(const Drag& drag) {
    const auto* swatch = std::get_if<DragOfSwatch>(&drag.source);
    return swatch != nullptr ? std::optional(swatch->origin.windowID) : std::nullopt;
}

std::string takenText(const Drag& drag) {
    const bool isBand = std::holds_alternative<DragOfBand>(drag.source);
    return isBand ? stagedCopyText(drag.color) : addedToBenchText(drag.color);
}

} // namespace

std::optional<std::string> Bench::refusal(const Drag& drag) const {
    if (std::holds_alternative<DragOfBenchColumn>(drag.source)) return std::nullopt;
    const auto* there = columnHolding(drag.color);
    if (there == nullptr) return std::nullopt;
    return alreadyOnBenchText(drag.color, describeOrigin(*there, asker(drag)));
}

void Bench::receive(const Drag& drag, std::optional<Uuid> before) {
    if (const auto* own = std::get_if<DragOfBenchColumn>(&drag.source))
        return moveBefore(own->column, before);
    if (auto refused = refusal(drag)) return say(*std::move(refused), kBriefly);
    const auto place = before ? content_.value().indexOfColumn(*before) : std::nullopt;
    insert(columnFor(drag), place.value_or(benchColumns().size()));
    say(takenText(drag), kBriefly);
}

void Bench::receiveAll(std::span<const PaletteFile::Swatch> found) {
    if (found.size() == 1)
        return receive({found[0].color, found[0].name, DragOfForeignColour{}}, std::nullopt);
    auto to = content_.value();
    auto active = benchActive.value();
    std::set<std::string> held;
    for (const auto& column : to.columns)
        held.insert(currentColor(column).identity());
    std::size_t added = 0, already = 0;
    for (const auto& swatch : found.first(std::min(found.size(), kPaletteCapacity))) {
        if (!held.insert(opaque(swatch.color).identity()).second) {
            ++already;
            continue;
        }
        to.columns.push_back(stagedColumn(swatch.color, swatch.name));
        active = BenchSelection{BenchSelection::Of::column, to.columns.back().id};
        ++added;
    }
    if (found.empty()) return;
    change(std::move(to), active);
    say(benchBatchText(added, already), kForCounts);
}

void Bench::moveBefore(const Uuid& column, std::optional<Uuid> before) {
    const auto& content = content_.value();
    const auto from = content.indexOfColumn(column);
    if (!from) return;
    const auto place = before ? content.indexOfColumn(*before) : std::nullopt;
    const auto to = place.value_or(content.columns.size());
    moveBenchColumn(*from, to > *from ? to - 1 : to);
}

BenchColumn Bench::columnFor(const Drag& drag) {
    if (const auto* swatch = std::get_if<DragOfSwatch>(&drag.source))
        return stagedColumn({swatch->origin.swatchID, drag.color, drag.name}, swatch->origin);
    auto column = stagedColumn(drag.color, drag.name);
    if (std::holds_alternative<DragOfWell>(drag.source))
        column.source.kind = BenchColumn::Kind::derived;
    return column;
}

} // namespace tintra
