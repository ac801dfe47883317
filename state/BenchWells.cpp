#include "colour/Clamp.h"
#include "mix/TintraMix.h"
#include "platform/Chance.h"
#include "platform/Services.h"
#include "state/Bench.h"
#include "state/CoalescingKeys.h"
#include "state/NoticeTexts.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cmath>
#include <string_view>

namespace tintra {
namespace {

struct FieldRow {
    double BenchWell::*amount;
    std::string_view name;
};

/// In the order of the cases.
constexpr std::array kWellFields{
    FieldRow{&BenchWell::ratio, "ratio"},
    FieldRow{&BenchWell::white, "white"},
    FieldRow{&BenchWell::black, "black"},
};

TintraMix::SRGB pigment(const WashColor& color) {
    return {clampedUnit(color.r), clampedUnit(color.g), clampedUnit(color.b)};
}

WashColor colorOf(const TintraMix::SRGB& mix) {
    return {mix.r, mix.g, mix.b, 1};
}

} // namespace

// Making and taking away

std::optional<Uuid> Bench::wellOf(const Uuid& a, const Uuid& b) const {
    const auto found =
        std::ranges::find_if(benchWells(), [&](const BenchWell& well) { return well.mixes(a, b); });
    return found == benchWells().end() ? std::nullopt : std::optional(found->id);
}

void Bench::toggleWell(const Uuid& a, const Uuid& b) {
    if (const auto there = wellOf(a, b)) return removeWell(*there);
    if (a == b || column(a) == nullptr || column(b) == nullptr) return;
    auto to = content_.value();
    const Uuid id = services_.chance.uuid();
    to.wells.push_back({id, a, b});
    change(std::move(to), BenchSelection{BenchSelection::Of::well, id});
}

void Bench::removeWell(const Uuid& id) {
    auto to = content_.value();
    to.removeWell(id);
    change(std::move(to));
}

std::optional<Uuid> Bench::mixCandidate(const Uuid& hovered) const {
    const auto at = content_.value().indexOfColumn(hovered);
    if (!at || *at + 1 >= benchColumns().size()) return std::nullopt;
    return benchColumns()[*at + 1].id;
}

// Mixing

void Bench::updateWell(const Uuid& id, WellField field, double value) {
    const auto at = content_.value().indexOfWell(id);
    if (!at || std::isnan(value)) return;
    const auto& row = kWellFields[static_cast<std::size_t>(field)];
    auto to = content_.value();
    to.wells[*at].*row.amount = clampedUnit(value);
    change(std::move(to), benchActive.value(), coalescing::well(id, row.name));
}

std::optional<std::pair<WashColor, WashColor>> Bench::parentColors(const BenchWell& well) const {
    const auto* a = column(well.parentA);
    const auto* b = column(well.parentB);
    if (a == nullptr || b == nullptr) return std::nullopt;
    return std::pair(currentColor(*a), currentColor(*b));
}

std::optional<WashColor> Bench::wellColor(const BenchWell& well) const {
    const auto parents = parentColors(well);
    if (!parents) return std::nullopt;
    return colorOf(TintraMix::mix(pigment(parents->first), pigment(parents->second), well.ratio,
                                  well.white, well.black));
}

std::vector<WashColor> Bench::wellRamp(const BenchWell& well, std::size_t count) const {
    std::vector<WashColor> colors;
    const auto parents = parentColors(well);
    if (!parents) return colors;
    const auto steps = static_cast<int>(std::min<std::size_t>(count, INT_MAX));
    for (const auto& mix : TintraMix::ramp(pigment(parents->first), pigment(parents->second),
                                           well.white, well.black, steps))
        colors.push_back(colorOf(mix));
    return colors;
}

// Keeping

void Bench::addWellToBench(const Uuid& id) {
    const auto* kept = well(id);
    const auto color = kept != nullptr ? wellColor(*kept) : std::nullopt;
    if (!color) return;
    if (const auto* there = columnHolding(*color))
        return say(alreadyOnBenchText(*color, describeOrigin(*there, {})), kBriefly);
    auto column = stagedColumn(*color, {});
    column.source.kind = BenchColumn::Kind::derived;
    auto to = content_.value();
    to.columns.push_back(column);
    to.removeWell(id);
    change(std::move(to), BenchSelection{BenchSelection::Of::column, column.id});
}

} // namespace tintra
