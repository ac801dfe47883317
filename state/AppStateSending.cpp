#include "platform/Services.h"
#include "state/AppState.h"
#include "state/AppUndo.h"
#include "state/Bench.h"
#include "state/ContrastBoard.h"
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

/// A colour that found a place on the contrast board.
struct Placed {
    Uuid id;
    std::optional<std::string> letGo; ///< name of the entry that made room
    ContrastBoard::Content before;
};

using Place = std::optional<Uuid> (ContrastBoard::*)(std::optional<std::string>, const WashColor&);

/// Puts a colour on the board by `place`, letting go of the oldest loose entry of a full one;
/// nothing when there is none.
std::optional<Placed> placed(ContrastBoard& board, Place place, std::optional<std::string> name,
                             const WashColor& colour) {
    Placed result{{}, {}, board.content().value()};
    if (board.isFull()) {
        const auto loose = board.letGoOfOldestLoose();
        if (!loose) return std::nullopt;
        result.letGo = board.name(*loose);
    }
    const auto id = (board.*place)(std::move(name), colour);
    if (!id) return std::nullopt;
    result.id = *id;
    return result;
}

std::optional<ToastAction> undoOf(ContrastBoard& board, ContrastBoard::Content before) {
    return ToastAction{"Undo",
                       [&board, before = std::move(before)] { board.exchangeContent(before); }};
}

/// An action for what let an entry go; what merely adds needs none.
std::optional<ToastAction> undoOf(ContrastBoard& board, Placed placed) {
    return placed.letGo ? undoOf(board, std::move(placed.before)) : std::nullopt;
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
    auto& board = context_.contrast;
    if (board.held(colour)) {
        toast(alreadyInContrastText(colour), kBriefly, where);
        return;
    }
    auto sent = placed(board, &ContrastBoard::send, std::move(name), colour);
    if (!sent)
        toast(contrastFullText(ContrastBoard::kCapacity), kBriefly, where);
    else
        toast(sentToContrastText(colour, sent->letGo), kBriefly, where, undoOf(board, *sent));
}

void AppState::sendToContrast(const WashColor& colour, std::optional<std::string> name,
                              Contrast::Role as, ToastPlace where) {
    auto& board = context_.contrast;
    if (const auto* held = board.held(colour)) {
        board.setRole(as, Uuid(held->id));
        toast(roleInContrastText(colour, as, {}), kBriefly, where);
        return;
    }
    auto sent = placed(board, &ContrastBoard::hold, std::move(name), colour);
    if (!sent) {
        toast(contrastFullText(ContrastBoard::kCapacity), kBriefly, where);
        return;
    }
    board.setRole(as, sent->id);
    toast(roleInContrastText(colour, as, sent->letGo), kBriefly, where, undoOf(board, *sent));
}

void AppState::sendAllToContrast() {
    if (swatches().empty()) return;
    auto& board = context_.contrast;
    ContrastBatch batch{swatches().size(), 0, 0, board.entries().size()};
    for (const auto& swatch : swatches()) {
        if (board.held(swatch.color))
            ++batch.already;
        else if (board.send(swatch.name, swatch.color))
            ++batch.sent;
    }
    if (board.entries().size() >= 3) board.mode = ContrastBoard::Mode::matrix;
    if (const auto& open = context_.preferences.windows.openContrastWindow) open();
    if (auto text = contrastBatchText(batch, ContrastBoard::kCapacity))
        toast(*std::move(text), kBriefly);
}

void AppState::toggleContrast(const WashColor& colour, std::optional<std::string> name,
                              ToastPlace where) {
    auto& board = context_.contrast;
    const auto* held = board.held(colour);
    if (!held) {
        sendToContrast(colour, std::move(name), where);
        return;
    }
    auto before = board.content().value();
    board.remove(Uuid(held->id));
    toast(tookOffContrastText(colour), kBriefly, where, undoOf(board, std::move(before)));
}

void AppState::sortContrastByLightness(bool lightestFirst, ToastPlace where) {
    auto& board = context_.contrast;
    const bool withinMatrix = board.mode.value() == ContrastBoard::Mode::matrix;
    auto before = board.sortByLightness(lightestFirst, withinMatrix);
    std::optional<ToastAction> undo;
    if (before)
        undo = ToastAction{"Undo", [&board, order = *before] { board.restoreOrder(order); }};
    toast(sortedText(lightestFirst, before.has_value()), kBriefly, where, std::move(undo));
}

// The clipboard

void AppState::copy(const WashColor& colour, const std::optional<std::string>& name,
                    std::optional<ColorFormat> as) {
    auto& preferences = context_.preferences;
    context_.services.clipboard.set(copiedColour(colour, name, as.value_or(preferences.format),
                                                 preferences.formatOptions.value()));
    preferences.remember(colour);
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
