#include "colour/ColorNames.h"
#include "platform/Unicode.h"
#include "state/Bench.h"

// The ties between columns and the swatches that they came from.

namespace tintra {

using Kind = BenchColumn::Kind;

WashColor Bench::currentColor(const BenchColumn& of) const {
    if (of.source.kind == Kind::paletteSwatch && of.source.origin) {
        const auto& origin = *of.source.origin;
        if (const auto seen = palettes_.swatch(origin.windowID, origin.swatchID))
            return opaque(seen->color);
    }
    return of.color;
}

Bench::PaletteSwatchResolution Bench::resolve(const BenchColumn& column) const {
    const auto& origin = column.source.origin;
    if (!origin) return Gone{};
    if (auto seen = palettes_.swatch(origin->windowID, origin->swatchID))
        return Attached{*std::move(seen)};
    if (palettes_.absence(origin->windowID) == OpenPalettes::Absence::gone) return Gone{};
    if (auto seen = column.isLinked() ? seenByName(column) : std::nullopt)
        return Attached{*std::move(seen)};
    return Dormant{};
}

std::optional<OpenPalettes::Sighting> Bench::seenByName(const BenchColumn& column) const {
    const auto& origin = *column.source.origin;
    if (!origin.paletteName) return std::nullopt;
    if (origin.index != PaletteOrigin::kUnknownIndex)
        return palettes_.swatch(*origin.paletteName, origin.index, column.color);
    std::optional<OpenPalettes::Sighting> seen;
    for (std::size_t i = 0; !seen && i < kPaletteCapacity; ++i)
        seen = palettes_.swatch(*origin.paletteName, i, column.color);
    return seen;
}

BenchColumn Bench::reconciled(const BenchColumn& column) const {
    const auto where = resolve(column);
    auto result = column;
    if (const auto* attached = std::get_if<Attached>(&where)) {
        result.color = opaque(attached->swatch.color);
        result.keptName = attached->swatch.name;
        result.source = {Kind::paletteSwatch, attached->swatch.origin};
    } else if (!column.isLinked()) {
        return result;
    } else if (std::holds_alternative<Dormant>(where)) {
        result.source.kind = Kind::dormant;
    } else {
        result.keptName = name(column);
        result.source.kind = Kind::staged;
    }
    return result;
}

void Bench::reconcileBenchProvenance() {
    auto to = content_.value();
    for (auto& column : to.columns)
        if (column.source.origin) column = reconciled(column);
    content_ = std::move(to);
}

std::string Bench::name(const BenchColumn& of) const {
    if (of.source.kind == Kind::paletteSwatch && of.source.origin) {
        const auto& origin = *of.source.origin;
        if (const auto seen = palettes_.swatch(origin.windowID, origin.swatchID))
            return seen->name ? *seen->name : ColorNames::shared().name(seen->color);
    }
    return of.keptName ? *of.keptName : ColorNames::shared().name(of.color);
}

std::string Bench::badgeText(const BenchColumn& column) const {
    const auto& [kind, origin] = column.source;
    if (kind == Kind::dormant && origin && origin->paletteName)
        return upperCased(*origin->paletteName);
    return std::string(badge(kind));
}

std::string Bench::describeOrigin(const BenchColumn& of, std::optional<Uuid> seenFrom) const {
    const auto& [kind, origin] = of.source;
    if (kind == Kind::derived) return "mixed here";
    if (!of.isLinked() || !origin) return "staged";
    if (seenFrom == origin->windowID) return "from this palette";
    return origin->paletteName ? "from " + *origin->paletteName : "from another window";
}

} // namespace tintra
