#include "state/AppState.h"
#include "state/AppUndo.h"
#include "state/CoalescingKeys.h"
#include "state/NoticeTexts.h"
#include "state/SwatchIdentity.h"
#include "state/SwatchName.h"
#include "state/UpdateGroup.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace tintra {
namespace {

using Names = std::span<const std::optional<std::string>>;

std::optional<std::string> nameAt(std::size_t index, Names names) {
    return index < names.size() ? names[index] : std::nullopt;
}

/// What of a batch goes into a palette.
struct Batch {
    std::vector<std::size_t> added; ///< places in the batch
    std::size_t skipped = 0;        ///< there already
};

Batch batch(std::span<const WashColor> offered, std::span<const PaletteSwatch> palette) {
    std::unordered_set<std::uint32_t> held;
    for (const auto& swatch : palette)
        held.insert(identityNumber(swatch.color));
    Batch result;
    for (std::size_t i = 0; i < offered.size(); ++i) {
        const auto identity = identityNumber(offered[i]);
        if (held.contains(identity)) {
            ++result.skipped;
        } else if (palette.size() + result.added.size() < kPaletteCapacity) {
            held.insert(identity);
            result.added.push_back(i);
        }
    }
    return result;
}

bool looksTheSame(const PaletteSwatch& a, const PaletteSwatch& b) {
    return a.color == b.color && a.name == b.name;
}

} // namespace

// Adding

bool AppState::refusesAsFull() const {
    if (swatches().size() < kPaletteCapacity) return false;
    toast(paletteFullText(swatches().size()), kBriefly);
    return true;
}

void AppState::selectDuplicate(std::size_t index, const WashColor& colour) {
    select(index);
    toast(alreadyInPaletteText(colour), kBriefly);
}

void AppState::insertSwatch(PaletteSwatch swatch, std::size_t at) {
    auto with = swatches();
    at = std::min(at, with.size());
    with.insert(with.begin() + static_cast<std::ptrdiff_t>(at), std::move(swatch));
    changePalette(std::move(with), at);
}

bool AppState::addToPalette(const WashColor& colour, Duplicates duplicates,
                            std::optional<std::string> name) {
    if (refusesAsFull()) return false;
    if (duplicates == Duplicates::refuse)
        if (const auto there = tintra::indexOf(colour, swatches())) {
            selectDuplicate(*there, colour);
            return false;
        }
    insertSwatch(freshSwatch(colour, std::move(name)), swatches().size());
    return true;
}

void AppState::addAllToPalette(std::span<const WashColor> colours, Names names) {
    if (colours.empty()) return;
    const auto [added, skipped] = batch(colours, swatches());
    if (!added.empty()) {
        const UpdateGroup group;
        const auto first = swatches().size();
        auto with = swatches();
        for (const auto i : added)
            with.push_back(freshSwatch(colours[i], nameAt(i, names)));
        changePalette(std::move(with));
        revealSwatch = first;
    }
    toast(batchText(colours.size(), added.size(), skipped, swatches().size()), kForCounts);
}

void AppState::addBlankSwatch(bool takingKeyboard) {
    if (!addToPalette(last(), Duplicates::allow)) return;
    const auto at = swatches().size() - 1;
    editSwatch(at);
    if (takingKeyboard) renamingSwatch = at;
}

void AppState::duplicateSwatch(std::size_t at) {
    if (at >= swatches().size() || refusesAsFull()) return;
    const auto& original = swatches()[at];
    insertSwatch(freshSwatch(original.color, original.name), at + 1);
}

// Removing, moving, naming

void AppState::removeSwatch(std::size_t at) {
    if (at >= swatches().size()) return;
    auto without = swatches();
    without.erase(without.begin() + static_cast<std::ptrdiff_t>(at));
    changePalette(std::move(without));
}

void AppState::removeSelectedSwatch() {
    if (const auto at = selectedSwatch.value()) removeSwatch(*at);
}

void AppState::moveSwatch(std::size_t from, std::size_t to) {
    if (from >= swatches().size()) return;
    to = std::min(to, swatches().size() - 1);
    if (from == to) return;
    exchangeMove(from, to);
    if (!context_.undo.extendTopToMove(id_, from, to)) context_.undo.appendMove(id_, from, to);
}

void AppState::renameSwatch(std::size_t at, std::string_view to) {
    if (at >= swatches().size()) return;
    auto name = swatchNameFrom(to);
    if (name == swatches()[at].name) return;
    auto renamed = swatches();
    renamed[at].name = std::move(name);
    changePalette(std::move(renamed));
}

// Replacing

void AppState::replaceInPalette(std::size_t index, const WashColor& with,
                                std::string_view channel) {
    if (index >= swatches().size() || swatches()[index].color == with) return;
    auto replaced = swatches();
    replaced[index].color = with;
    const auto key =
        channel.empty() ? std::string() : coalescing::swatchChannel(replaced[index].id, channel);
    changePalette(std::move(replaced), std::nullopt, key);
}

void AppState::replacePalette(std::span<const WashColor> with, Names names) {
    const auto room = std::min(with.size(), kPaletteCapacity);
    std::vector<PaletteSwatch> fresh;
    fresh.reserve(room);
    for (std::size_t i = 0; i < room; ++i)
        fresh.push_back(freshSwatch(with[i], nameAt(i, names)));
    if (!std::ranges::equal(fresh, swatches(), looksTheSame)) {
        const UpdateGroup group;
        changePalette(std::move(fresh));
        selectedSwatch = std::nullopt;
    }
    if (room < with.size()) toast(paletteFullText(room), kForCounts);
}

void AppState::clearPalette() {
    if (swatches().empty() && !attachment_.value()) return;
    confirmDiscardingChanges("clearing the palette", [this](bool goesOn) {
        if (goesOn) leaveUntitled();
    });
}

void AppState::emptyPalette() {
    if (!swatches().empty()) changePalette({});
}

// The colour editor

void AppState::editSwatch(std::size_t at) {
    if (at >= swatches().size()) return;
    const auto swatch = swatches()[at];
    const auto& buffer = editorBuffer.value();
    if (!buffer || buffer->swatchID != swatch.id) {
        applyEdit();
        editorBuffer = EditorBuffer{swatch.id, swatch.color};
    }
    select(at);
}

void AppState::applyEdit(std::string_view channel) {
    const auto buffer = editorBuffer.value();
    if (!buffer) return;
    if (const auto at = indexOf(buffer->swatchID)) replaceInPalette(*at, buffer->color, channel);
}

void AppState::revertEdit() {
    const auto& buffer = editorBuffer.value();
    if (!buffer) return;
    if (const auto at = indexOf(buffer->swatchID))
        editorBuffer = EditorBuffer{buffer->swatchID, swatches()[*at].color};
}

} // namespace tintra
