#include "state/Bench.h"
#include "state/NoticeTexts.h"

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
