#include "platform/Chance.h"
#include "platform/DefaultsStore.h"
#include "platform/Log.h"
#include "platform/Services.h"
#include "state/Bench.h"
#include "state/StoredBench.h"
#include "state/UpdateGroup.h"

namespace tintra {
namespace {

using Kind = BenchColumn::Kind;

StoredBench::ColumnSnapshot snapshot(const BenchColumn& column) {
    StoredBench::ColumnSnapshot result;
    result.color = column.color;
    result.kind = column.source.kind;
    result.name = column.keptName;
    const auto& origin = column.source.origin;
    // No undo reaches across a restart, and so a link that was cut stays so.
    if (!column.isLinked() || !origin) return result;
    result.paletteName = origin->paletteName;
    // A link restored from a record without identifiers has none still.
    if (origin->windowID != Uuid{}) result.windowID = origin->windowID;
    if (origin->swatchID != Uuid{}) result.swatchID = origin->swatchID;
    if (origin->index != PaletteOrigin::kUnknownIndex) result.index = origin->index;
    return result;
}

/// A linked column is dormant until its swatch is found.
BenchColumn restored(const StoredBench::ColumnSnapshot& snapshot, const Uuid& id) {
    BenchColumn result{id, snapshot.color, {snapshot.kind, {}}, snapshot.name};
    if (!result.isLinked()) return result;
    const auto index =
        snapshot.index ? static_cast<std::size_t>(*snapshot.index) : PaletteOrigin::kUnknownIndex;
    result.source = {Kind::dormant,
                     PaletteOrigin{snapshot.paletteName, snapshot.windowID.value_or(Uuid{}),
                                   snapshot.swatchID.value_or(Uuid{}), index}};
    return result;
}

} // namespace

// Writing

StoredBench Bench::stored() const {
    const auto& content = content_.value();
    StoredBench result;
    result.wasOpenAtLastQuit = isWindowOpen;
    result.frame = frame;
    for (const auto& column : content.columns)
        result.columns.push_back(snapshot(column));
    for (const auto& well : content.wells)
        result.wells.push_back({content.indexOfColumn(well.parentA).value_or(0),
                                content.indexOfColumn(well.parentB).value_or(0), well.ratio,
                                well.white, well.black});
    if (const auto active = benchActive.value()) {
        const bool isWell = active->kind == BenchSelection::Of::well;
        const auto index =
            isWell ? content.indexOfWell(active->id) : content.indexOfColumn(active->id);
        if (index) result.active = {isWell, *index};
    }
    return result;
}

void Bench::captureForQuit() {
    services_.defaults.set(StoredBench::kKey, encodedBench(stored()));
}

// Reading

void Bench::restoreIfNeeded() {
    if (hasRestored_) return;
    hasRestored_ = true;
    const auto text = services_.defaults.data(StoredBench::kKey);
    if (!text) return;
    if (const auto stored = decodedBench(*text)) return restore(*stored);
    services_.log.line("Tintra: could not decode the saved Bench: TintraBench is not what it "
                       "should be");
    services_.defaults.setAside(StoredBench::kKey);
}

void Bench::restore(const StoredBench& stored) {
    BenchContent content;
    for (const auto& snapshot : stored.columns)
        content.columns.push_back(restored(snapshot, services_.chance.uuid()));
    const auto idAt = [&](std::size_t index) { return content.columns[index].id; };
    for (const auto& well : stored.wells)
        content.wells.push_back({services_.chance.uuid(), idAt(well.parentAIndex),
                                 idAt(well.parentBIndex), well.ratio, well.white, well.black});
    const UpdateGroup group;
    if (const auto& active = stored.active)
        benchActive =
            active->isWell
                ? BenchSelection{BenchSelection::Of::well, content.wells[active->index].id}
                : BenchSelection{BenchSelection::Of::column, idAt(active->index)};
    content_ = std::move(content);
    frame = stored.frame;
    wasOpenAtLastQuit_ = stored.wasOpenAtLastQuit;
    reconcileBenchProvenance();
}

} // namespace tintra
