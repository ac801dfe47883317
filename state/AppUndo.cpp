#include "state/AppUndo.h"

#include "colour/CaseTable.h"
#include "platform/Clock.h"
#include "platform/Services.h"
#include "state/NoticeTexts.h"

#include <array>
#include <string_view>
#include <utility>

namespace tintra {

struct AppUndo::ActionRow {
    Action value;
    std::string_view raw;  ///< follows "Undo " and "Redo " in the menu
    std::string_view verb; ///< follows "Undid" and "Redid" in notices
};

const AppUndo::ActionRow& AppUndo::row(Action action) {
    static constexpr std::array kActions{
        ActionRow{Action::palette, "Palette Change", " palette change"},
        ActionRow{Action::colour, "Colour Change", " colour change"},
        ActionRow{Action::bench, "Bench Change", " Bench change"},
        ActionRow{Action::benchClear, "Clearing the Bench", " clearing the Bench"},
        ActionRow{Action::seeds, "Seed Change", " seed change"},
        ActionRow{Action::move, "Move", " palette change"},
    };
    static_assert(inCaseOrder(kActions));
    return rowOf(kActions, action);
}

namespace {

/// Whether the same swatches stand in the same places under the same names, not all in the same
/// colours.
bool onlyColoursDiffer(const std::vector<PaletteSwatch>& a, const std::vector<PaletteSwatch>& b) {
    if (a.size() != b.size()) return false;
    bool differ = false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (a[i].id != b[i].id || a[i].name != b[i].name) return false;
        differ = differ || a[i].color != b[i].color;
    }
    return differ;
}

} // namespace

void AppUndo::attach(UndoWindows& windows, BenchUndoTarget& bench) {
    windows_ = &windows;
    bench_ = &bench;
}

// Taking entries

void AppUndo::checkpointPalette(const Uuid& window, PaletteContent before, std::string coalescing) {
    checkpoint(PaletteEntry{std::move(before)}, window, std::move(coalescing));
}

void AppUndo::checkpointSeeds(const Uuid& window, Seeds before, std::string coalescing) {
    checkpoint(SeedsEntry{before}, window, std::move(coalescing));
}

void AppUndo::checkpointBench(BenchContent before, std::string coalescing, bool isClear) {
    checkpoint(BenchEntry{std::move(before), isClear}, {}, std::move(coalescing));
}

void AppUndo::appendMove(const Uuid& window, std::size_t from, std::size_t to) {
    append({MoveEntry{from, to}, window, services_.clock.seconds(), {}});
}

bool AppUndo::extendTopToMove(const Uuid& window, std::size_t from, std::size_t to) {
    if (gesture_ == 0 || topGesture_ != gesture_ || entries_.empty()) return false;
    auto& top = entries_.back();
    auto* move = std::get_if<MoveEntry>(&top.change);
    if (move == nullptr || top.window != window || move->to != from) return false;
    move->to = to;
    top.time = services_.clock.seconds();
    if (move->from == to) {
        entries_.pop_back();
        topGesture_ = 0;
    }
    changed();
    return true;
}

void AppUndo::checkpoint(Change change, const Uuid& window, std::string coalescing) {
    Entry entry{std::move(change), window, services_.clock.seconds(), std::move(coalescing)};
    if (!topAbsorbs(entry)) return append(std::move(entry));
    entries_.back().time = entry.time;
    topGesture_ = gesture_;
    redos_.clear();
    changed();
}

bool AppUndo::topAbsorbs(const Entry& entry) const {
    if (entries_.empty()) return false;
    const auto& top = entries_.back();
    if (top.change.index() != entry.change.index() || top.window != entry.window) return false;
    // Clearing goes by its own name, and so stays a step of its own.
    const auto* bench = std::get_if<BenchEntry>(&entry.change);
    if (bench != nullptr && bench->isClear != std::get<BenchEntry>(top.change).isClear)
        return false;
    if (gesture_ != 0 && topGesture_ == gesture_) return true;
    return !entry.coalescing.empty() && top.coalescing == entry.coalescing &&
           entry.time - top.time < kCoalescingSeconds;
}

void AppUndo::append(Entry entry) {
    entries_.push_back(std::move(entry));
    if (entries_.size() > kDepth) entries_.erase(entries_.begin());
    topGesture_ = gesture_;
    redos_.clear();
    changed();
}

void AppUndo::beginGesture() {
    gesture_ = ++gestures_;
}

void AppUndo::endGesture() {
    gesture_ = 0;
}

// Undoing and redoing

void AppUndo::undo(ToastPlace from) {
    if (const auto undone = step(entries_, redos_))
        services_.toasts.show("Undid" + std::string(row(*undone).verb), kBriefly,
                              ToastAction{"Redo", [this, from] { redo(from); }}, from);
}

void AppUndo::redo(ToastPlace from) {
    if (const auto redone = step(redos_, entries_))
        services_.toasts.show("Redid" + std::string(row(*redone).verb), kBriefly,
                              ToastAction{"Undo", [this, from] { undo(from); }}, from);
}

std::optional<AppUndo::Action> AppUndo::step(std::vector<Entry>& from, std::vector<Entry>& to) {
    std::optional<Action> done;
    while (!done && !from.empty()) {
        auto entry = std::move(from.back());
        from.pop_back();
        const auto name = action(entry);
        if (!exchange(entry)) continue;
        to.push_back(std::move(entry));
        done = name;
    }
    topGesture_ = 0;
    changed();
    return done;
}

bool AppUndo::exchange(Entry& entry) {
    if (auto* bench = std::get_if<BenchEntry>(&entry.change)) {
        bench->content = bench_->exchangeContent(std::move(bench->content));
        return true;
    }
    auto* target = windows_->undoTarget(entry.window);
    if (target == nullptr) return false;
    if (auto* palette = std::get_if<PaletteEntry>(&entry.change)) {
        palette->content = target->exchangePalette(std::move(palette->content));
    } else if (auto* seeds = std::get_if<SeedsEntry>(&entry.change)) {
        seeds->seeds = target->exchangeSeeds(seeds->seeds);
    } else if (auto* move = std::get_if<MoveEntry>(&entry.change)) {
        target->exchangeMove(move->to, move->from);
        std::swap(move->from, move->to);
    }
    return true;
}

void AppUndo::discardEntries(const Uuid& forWindow) {
    const auto isOfWindow = [&](const Entry& entry) {
        return entry.window == forWindow && !std::holds_alternative<BenchEntry>(entry.change);
    };
    // Where the top entry goes, the next one is of an earlier gesture.
    if (!entries_.empty() && isOfWindow(entries_.back())) topGesture_ = 0;
    if (std::erase_if(entries_, isOfWindow) + std::erase_if(redos_, isOfWindow) > 0) changed();
}

// What changes are called

std::string AppUndo::title() const {
    if (entries_.empty()) return "Undo";
    return "Undo " + std::string(row(action(entries_.back())).raw);
}

std::string AppUndo::redoTitle() const {
    if (redos_.empty()) return "Redo";
    return "Redo " + std::string(row(action(redos_.back())).raw);
}

AppUndo::Action AppUndo::action(const Entry& of) const {
    if (const auto* palette = std::get_if<PaletteEntry>(&of.change))
        return paletteAction(*palette, of.window);
    if (const auto* bench = std::get_if<BenchEntry>(&of.change))
        return bench->isClear ? Action::benchClear : Action::bench;
    return std::holds_alternative<SeedsEntry>(of.change) ? Action::seeds : Action::move;
}

AppUndo::Action AppUndo::paletteAction(const PaletteEntry& entry, const Uuid& window) const {
    const auto* target = windows_->undoTarget(window);
    const bool isColour =
        target != nullptr && onlyColoursDiffer(entry.content.swatches, target->swatches());
    return isColour ? Action::colour : Action::palette;
}

} // namespace tintra
