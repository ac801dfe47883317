#include "state/Bench.h"

#include "colour/Contrast.h"
#include "platform/Chance.h"
#include "platform/Dialogues.h"
#include "platform/Services.h"
#include "state/AppUndo.h"
#include "state/NoticeTexts.h"
#include "state/UpdateGroup.h"

#include <algorithm>

namespace tintra {
namespace {

constexpr ToastPlace kBenchWindow{ToastWindow::bench, {}};

BenchSelection selected(const BenchColumn& column) {
    return {BenchSelection::Of::column, column.id};
}

} // namespace

Bench::Bench(Services& services, const OpenPalettes& palettes, AppUndo& undo)
    : services_(services), palettes_(palettes), undo_(undo) {}

const BenchColumn* Bench::column(const Uuid& id) const {
    const auto at = content_.value().indexOfColumn(id);
    return at ? &benchColumns()[*at] : nullptr;
}

const BenchWell* Bench::well(const Uuid& id) const {
    const auto at = content_.value().indexOfWell(id);
    return at ? &benchWells()[*at] : nullptr;
}

void Bench::say(std::string text, double seconds) const {
    services_.toasts.show(std::move(text), seconds, std::nullopt, kBenchWindow);
}

// Changing

void Bench::change(BenchContent to, std::optional<BenchSelection> active, std::string coalescing) {
    if (to == content_.value()) return;
    undo_.checkpointBench(content_.value(), std::move(coalescing));
    const UpdateGroup group;
    content_ = std::move(to);
    benchActive = active;
    pruneBenchActiveIfInvalid();
}

BenchContent Bench::exchangeContent(BenchContent other) {
    const UpdateGroup group;
    auto before = content_.value();
    content_ = std::move(other);
    reconcileBenchProvenance();
    pruneBenchActiveIfInvalid();
    return before;
}

// Columns

BenchColumn Bench::stagedColumn(const PaletteSwatch& holding, PaletteOrigin origin) {
    return {services_.chance.uuid(),
            opaque(holding.color),
            {BenchColumn::Kind::paletteSwatch, std::move(origin)},
            holding.name};
}

BenchColumn Bench::stagedColumn(const WashColor& copyOf, std::optional<std::string> name) {
    return {services_.chance.uuid(), opaque(copyOf), {}, std::move(name)};
}

void Bench::insert(BenchColumn column, std::size_t at) {
    auto to = content_.value();
    const auto active = selected(column);
    to.columns.insert(to.columns.begin() + static_cast<std::ptrdiff_t>(at), std::move(column));
    change(std::move(to), active);
}

void Bench::addStagedToBench(BenchColumn column) {
    insert(std::move(column), benchColumns().size());
    isWindowOpen = true;
    if (openWindow) openWindow();
}

const BenchColumn* Bench::columnOf(const Uuid& window, const Uuid& swatch) const {
    const auto found = std::ranges::find_if(benchColumns(), [&](const BenchColumn& column) {
        return column.isLinked() && column.source.origin &&
               column.source.origin->windowID == window && column.source.origin->swatchID == swatch;
    });
    return found == benchColumns().end() ? nullptr : &*found;
}

const BenchColumn* Bench::columnHolding(const WashColor& color) const {
    const auto wanted = opaque(color).identity();
    const auto found = std::ranges::find_if(benchColumns(), [&](const BenchColumn& column) {
        return currentColor(column).identity() == wanted;
    });
    return found == benchColumns().end() ? nullptr : &*found;
}

void Bench::removeBenchColumn(const Uuid& id) {
    auto to = content_.value();
    to.removeColumn(id);
    change(std::move(to));
}

void Bench::moveBenchColumn(std::size_t from, std::size_t to) {
    const auto count = benchColumns().size();
    if (from >= count || to >= count || from == to) return;
    if (isReorderingPaused())
        return say("Reordering is paused while a well is on the Bench", kForExplaining);
    auto moved = content_.value();
    auto& columns = moved.columns;
    const auto begin = columns.begin();
    const auto source = begin + static_cast<std::ptrdiff_t>(from);
    const auto target = begin + static_cast<std::ptrdiff_t>(to);
    if (from < to)
        std::rotate(source, source + 1, target + 1);
    else
        std::rotate(target, source, source + 1);
    change(std::move(moved));
}

void Bench::renameBenchColumn(const Uuid& id, std::optional<std::string> name) {
    const auto at = content_.value().indexOfColumn(id);
    if (!at || benchColumns()[*at].source.kind == BenchColumn::Kind::paletteSwatch) return;
    if (name && name->empty()) name.reset();
    auto to = content_.value();
    to.columns[*at].keptName = std::move(name);
    change(std::move(to));
}

std::vector<double> Bench::neighbourRatios() const {
    std::vector<double> ratios;
    const auto& columns = benchColumns();
    for (std::size_t i = 1; i < columns.size(); ++i)
        ratios.push_back(
            Contrast::wcagRatio(currentColor(columns[i - 1]), currentColor(columns[i])));
    return ratios;
}

// Clearing

void Bench::clearBench(Asking asking) {
    const auto isLost = [this](const WashColor& color) { return !palettes_.holds(color); };
    const auto colours = static_cast<std::size_t>(std::ranges::count_if(
        benchColumns(), [&](const BenchColumn& column) { return isLost(currentColor(column)); }));
    const auto mixes =
        static_cast<std::size_t>(std::ranges::count_if(benchWells(), [&](const BenchWell& well) {
            const auto color = wellColor(well);
            return color && isLost(*color);
        }));
    if (asking == Asking::no || (colours == 0 && mixes == 0)) return clear();

    auto text = "Not in any open palette: " + counted(colours, "colour", "colours");
    if (mixes > 0) text += " and " + counted(mixes, "mix", "mixes");
    text += ". ⌘Z brings the Bench back.";
    services_.dialogues.ask(
        {"Clear the Bench?", std::move(text), {"Clear", "Cancel"}, kBenchWindow},
        [this](std::size_t button) {
            if (button == 0) clear();
        });
}

void Bench::clear() {
    if (content_.value() == BenchContent{}) return;
    undo_.checkpointBench(content_.value(), {}, true);
    const UpdateGroup group;
    content_ = BenchContent{};
    pruneBenchActiveIfInvalid();
}

} // namespace tintra
