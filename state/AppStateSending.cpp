#include "platform/Services.h"
#include "state/AppState.h"
#include "state/AppUndo.h"
#include "state/Bench.h"
#include "state/ContrastBoard.h"
#include "state/ContrastSending.h"
#include "state/CopiedColour.h"
#include "state/NoticeTexts.h"
#include "state/Preferences.h"
#include "state/SwatchIdentity.h"

#include <algorithm>
#include <utility>

namespace tintra {
namespace {

/// The copy of a colour that was put on the Bench by itself; none when there is none.
const BenchColumn* stagedCopy(const Bench& bench, WashColor colour) {
    colour.a = 1;
    const auto& columns = bench.benchColumns();
    const auto found = std::ranges::find_if(columns, [&](const BenchColumn& column) {
        return column.source.kind == BenchColumn::Kind::staged &&
               identityNumber(column.color) == identityNumber(colour);
    });
    return found == columns.end() ? nullptr : &*found;
}

ContrastSending contrastSending(const AppContext& context, ToastPlace from) {
    return {context.contrast, context.services.toasts, from};
}

} // namespace

// The Bench

void AppState::toggleBenchedSwatch(std::size_t at) {
    if (at >= swatches().size()) return;
    auto& bench = context_.bench;
    const auto swatch = swatches()[at];
    if (const auto* own = bench.columnOf(id_, swatch.id)) {
        bench.removeBenchColumn(Uuid(own->id));
        toast(tookOffBenchText(swatch.color), kBriefly);
    } else if (const auto* other = bench.columnHolding(swatch.color)) {
        toast(alreadyOnBenchText(swatch.color, bench.describeOrigin(*other, id_)), kBriefly);
    } else {
        bench.addStagedToBench(
            bench.stagedColumn(swatch, {currentPaletteName(), id_, swatch.id, at}));
        toast(addedToBenchText(swatch.color), kBriefly);
    }
}

void AppState::toggleBenchedBand(const WashColor& colour, std::optional<std::string> name) {
    auto& bench = context_.bench;
    if (const auto* copied = stagedCopy(bench, colour)) {
        bench.removeBenchColumn(Uuid(copied->id));
        toast(tookOffBenchText(colour), kBriefly);
    } else if (const auto* other = bench.columnHolding(colour)) {
        toast(alreadyOnBenchText(colour, bench.describeOrigin(*other, id_)), kBriefly);
    } else {
        bench.addStagedToBench(bench.stagedColumn(colour, std::move(name)));
        toast(stagedCopyText(colour), kBriefly);
    }
}

bool AppState::isPaletteSwatchBenched(std::size_t at) const {
    return at < swatches().size() && context_.bench.columnOf(id_, swatches()[at].id) != nullptr;
}

bool AppState::isBandBenched(const WashColor& colour) const {
    return stagedCopy(context_.bench, colour) != nullptr;
}

// Contrast

void AppState::sendToContrast(const WashColor& colour, std::optional<std::string> name,
                              ToastPlace where) {
    contrastSending(context_, where).send(colour, std::move(name));
}

void AppState::sendToContrast(const WashColor& colour, std::optional<std::string> name,
                              Contrast::Role as, ToastPlace where) {
    contrastSending(context_, where).send(colour, std::move(name), as);
}

void AppState::sendAllToContrast() {
    if (swatches().empty()) return;
    std::vector<PaletteFile::Swatch> all;
    for (const auto& swatch : swatches())
        all.push_back({swatch.color, swatch.name});
    contrastSending(context_, place()).sendAll(all);
    auto& board = context_.contrast;
    if (board.entries().size() >= 3) board.mode = ContrastBoard::Mode::matrix;
    if (const auto& open = context_.preferences.windows.openContrastWindow) open();
}

void AppState::toggleContrast(const WashColor& colour, std::optional<std::string> name,
                              ToastPlace where) {
    contrastSending(context_, where).toggle(colour, std::move(name));
}

void AppState::sortContrastByLightness(bool lightestFirst, ToastPlace where) {
    contrastSending(context_, where).sortByLightness(lightestFirst);
}

// The clipboard

void AppState::copy(const WashColor& colour, const std::optional<std::string>& name,
                    std::optional<ColorFormat> as) {
    copyColour(context_.services, context_.preferences, colour, name, as);
    copyTick = copyTick.value() + 1;
}

void AppState::copyAll(std::span<const WashColor> colours,
                       std::span<const std::optional<std::string>> names) {
    if (colours.empty()) return;
    const auto& preferences = context_.preferences;
    context_.services.clipboard.set(
        copiedColours(colours, names, preferences.format, preferences.formatOptions.value()));
    copyTick = copyTick.value() + 1;
}

void AppState::quickPick(const WashColor& colour, Modifiers modifiers) {
    if (modifiers.command) {
        pickFirst(colour);
        toast("First seed " + noticeCode(colour), kBriefly);
    } else if (modifiers.option) {
        pickLast(colour);
        toast("Last seed " + noticeCode(colour), kBriefly);
    } else if (modifiers.shift) {
        context_.preferences.remember(colour);
        if (addToPalette(colour, Duplicates::refuse))
            toast("Added " + noticeCode(colour) + " to " + title(), kBriefly);
    } else {
        copy(colour, {});
        toast(copiedText(colour), kBriefly);
    }
}

} // namespace tintra
