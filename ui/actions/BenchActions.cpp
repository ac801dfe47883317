// What acts on the columns and wells of the Bench.

#include "platform/Services.h"
#include "platform/Toasts.h"
#include "state/Models.h"
#include "state/NoticeTexts.h"
#include "ui/actions/ActionRows.h"
#include "ui/bench/BenchWindow.h"
#include "ui/program/Windows.h"
#include "ui/shared/Text.h"

#include <QMenu>
#include <algorithm>

namespace tintra::actionRows {
namespace {

Bench& bench(const Context& context) {
    return context.ui.models.bench();
}

/// The active column, well; null while the other, or nothing, is active.
const BenchColumn* activeColumn(const Context& context) {
    const auto active = bench(context).benchActive.value();
    return active ? bench(context).column(active->id) : nullptr;
}
const BenchWell* activeWell(const Context& context) {
    const auto active = bench(context).benchActive.value();
    return active ? bench(context).well(active->id) : nullptr;
}
bool hasColumn(const Context& context) {
    return activeColumn(context) != nullptr;
}
bool hasWell(const Context& context) {
    return activeWell(context) != nullptr;
}

// Mixing

/// What the active column is mixed with.
std::optional<Uuid> candidate(const Context& context) {
    const auto* column = activeColumn(context);
    return column ? bench(context).mixCandidate(column->id) : std::nullopt;
}

bool isMixed(const Bench& bench, const Uuid& one, const Uuid& other) {
    return std::ranges::any_of(bench.benchWells(),
                               [&](const BenchWell& well) { return well.mixes(one, other); });
}

void mixWithNext(const Context& context) {
    if (const auto next = candidate(context))
        bench(context).toggleWell(Uuid(activeColumn(context)->id), *next);
}

void fillMixWith(QMenu& menu, const Context& context) {
    const auto* active = activeColumn(context);
    if (!active) return;
    auto& on = bench(context);
    for (const auto& column : on.benchColumns()) {
        if (column.id == active->id) continue;
        auto* action = menu.addAction(
            oneLine(on.name(column), 60), &menu,
            [&on, one = active->id, other = column.id] { on.toggleWell(one, other); });
        action->setCheckable(true);
        action->setChecked(isMixed(on, active->id, column.id));
    }
}

bool hasOthers(const Context& context) {
    return hasColumn(context) && bench(context).benchColumns().size() > 1;
}

// Columns

/// Whether the active column has a place to go to, `by` from its own.
bool canMove(const Context& context, std::ptrdiff_t by) {
    const auto* column = activeColumn(context);
    if (!column) return false;
    const auto at = bench(context).content().value().indexOfColumn(column->id);
    const auto to = static_cast<std::ptrdiff_t>(*at) + by;
    return to >= 0 && to < std::ssize(bench(context).benchColumns());
}

/// While there are wells the Bench says why not.
void move(const Context& context, std::ptrdiff_t by) {
    if (!canMove(context, by)) return;
    const auto at = bench(context).content().value().indexOfColumn(activeColumn(context)->id);
    bench(context).moveBenchColumn(*at,
                                   static_cast<std::size_t>(static_cast<std::ptrdiff_t>(*at) + by));
}

/// What stands in its place is active then.
void takeOff(const Context& context) {
    auto& on = bench(context);
    const auto active = on.benchActive.value();
    if (!active) return;
    const auto before = on.activeOrder();
    const auto at = std::ranges::find(before, *active) - before.begin();
    if (active->kind == BenchSelection::Of::well)
        on.removeWell(active->id);
    else
        on.removeBenchColumn(active->id);
    const auto left = on.activeOrder();
    if (left.empty()) return;
    on.benchActive = left[static_cast<std::size_t>(std::min(at, std::ssize(left) - 1))];
}

/// To the palette used last; a window opens when there is none.
void addToPalette(const Context& context) {
    const auto target = context.window->target();
    if (!target) return;
    auto* front = context.ui.models.workspaces().front();
    auto& to = front ? *front : stateInFront(context);
    if (to.addToPalette(target->color, AppState::Duplicates::refuse, target->name))
        context.ui.services.toasts.show("Added " + noticeCode(target->color) + " to " + to.title(),
                                        kBriefly, {}, context.window->place());
}

const ActionRow kRows[] = {
    {.value = ActionId::benchMix,
     .raw = "benchMix",
     .text = "Mix with the Next Colour",
     .keys = "M",
     .scope = KeyScope::canvas,
     .in = WindowKind::bench,
     .menu = MenuId::bench,
     .isEnabled = [](const Context& c) { return candidate(c).has_value(); },
     .perform = mixWithNext},
    {.value = ActionId::benchMixWith,
     .raw = "benchMixWith",
     .text = "Mix With",
     .in = WindowKind::bench,
     .menu = MenuId::bench,
     .isEnabled = hasOthers,
     .fill = fillMixWith},
    {.value = ActionId::benchAdjust,
     .raw = "benchAdjust",
     .text = "Adjust the Mix",
     .keys = "Enter; Return",
     .scope = KeyScope::canvas,
     .in = WindowKind::bench,
     .menu = MenuId::bench,
     .isEnabled = hasWell,
     .perform = [](const Context& c) { c.bench->adjustMix(); }},
    {.value = ActionId::benchKeep,
     .raw = "benchKeep",
     .text = "Keep the Mix as a Colour",
     .keys = "Ctrl+Enter; Ctrl+Return",
     .in = WindowKind::bench,
     .menu = MenuId::bench,
     .isEnabled = hasWell,
     .perform = [](const Context& c) { bench(c).addWellToBench(Uuid(activeWell(c)->id)); }},
    {.value = ActionId::benchAddToPalette,
     .raw = "benchAddToPalette",
     .text = "Add to Palette",
     .in = WindowKind::bench,
     .menu = MenuId::bench,
     .isEnabled = hasTarget,
     .perform = addToPalette},
    {.value = ActionId::benchRename,
     .raw = "benchRename",
     .text = "Rename",
     .keys = "F2",
     .in = WindowKind::bench,
     .menu = MenuId::bench,
     .isEnabled = hasColumn,
     .perform = [](const Context& c) { c.bench->beginRename(); }},
    {.value = ActionId::benchMoveLeft,
     .raw = "benchMoveLeft",
     .text = "Move Left",
     .keys = "Ctrl+Shift+Left",
     .scope = KeyScope::canvas,
     .in = WindowKind::bench,
     .menu = MenuId::bench,
     .isEnabled = [](const Context& c) { return canMove(c, -1); },
     .perform = [](const Context& c) { move(c, -1); }},
    {.value = ActionId::benchMoveRight,
     .raw = "benchMoveRight",
     .text = "Move Right",
     .keys = "Ctrl+Shift+Right",
     .scope = KeyScope::canvas,
     .in = WindowKind::bench,
     .menu = MenuId::bench,
     .isEnabled = [](const Context& c) { return canMove(c, 1); },
     .perform = [](const Context& c) { move(c, 1); }},
    {.value = ActionId::benchTakeOff,
     .raw = "benchTakeOff",
     .text = "Take off the Bench",
     .keys = "B; Del; Backspace",
     .scope = KeyScope::canvas,
     .in = WindowKind::bench,
     .menu = MenuId::bench,
     .isEnabled = hasTarget,
     .perform = takeOff,
     .title =
         [](const Context& c) {
             return worded(hasWell(c) ? "Remove the Well" : "Take off the Bench");
         }},
};

} // namespace

std::span<const ActionRow> ofBench() {
    return kRows;
}

} // namespace tintra::actionRows
