// What acts on the colours of the contrast window, and how they are read.

#include "platform/Services.h"
#include "state/ContrastSending.h"
#include "state/Models.h"
#include "state/NoticeTexts.h"
#include "ui/actions/ActionRows.h"
#include "ui/contrast/ContrastWindow.h"
#include "ui/contrast/CopyFigure.h"
#include "ui/shared/Text.h"

#include <QMenu>
#include <algorithm>

namespace tintra::actionRows {
namespace {

using Mode = ContrastBoard::Mode;
using Measure = ContrastBoard::Measure;
using Role = ContrastBoard::Role;

ContrastBoard& board(const Context& context) {
    return context.ui.models.contrast();
}

ContrastSending sending(const Context& context) {
    return {board(context), context.ui.services.toasts, context.window->place()};
}

bool hasEntry(const Context& context) {
    return context.contrast->entry().has_value();
}

bool hasEntries(const Context& context) {
    return !board(context).entries().empty();
}

bool hasPair(const Context& context) {
    return board(context).text() && board(context).ground();
}

template <Role role>
void giveRole(const Context& context) {
    if (const auto id = context.contrast->entry()) board(context).setRole(role, *id);
}

template <Mode mode>
constexpr ActionRow modeRow(ActionId id, std::string_view raw, const char* text, const char* keys) {
    return {.value = id,
            .raw = raw,
            .text = text,
            .keys = keys,
            .in = WindowKind::contrast,
            .menu = MenuId::contrast,
            .perform = [](const Context& c) { board(c).mode = mode; },
            .isOn = [](const Context& c) { return board(c).mode.value() == mode; }};
}

template <Measure measure>
constexpr ActionRow measureRow(ActionId id, std::string_view raw, const char* text) {
    return {.value = id,
            .raw = raw,
            .text = text,
            .in = WindowKind::contrast,
            .menu = MenuId::contrast,
            .perform = [](const Context& c) { board(c).measure = measure; },
            .isOn = [](const Context& c) { return board(c).measure.value() == measure; }};
}

void fillTargets(QMenu& menu, const Context& context) {
    fillContrastTargets(menu, board(context));
}

void moveBy(const Context& context, int by) {
    const auto id = context.contrast->entry();
    if (!id) return;
    const auto& entries = board(context).entries();
    const auto from = std::ranges::find(entries, *id, &ContrastBoard::Entry::id) - entries.begin();
    const auto to = std::clamp<std::ptrdiff_t>(from + by, 0, std::ssize(entries) - 1);
    context.contrast->moveEntry(*id, static_cast<std::size_t>(to));
}

void addToPalette(const Context& context) {
    const auto target = context.window->target();
    if (target)
        stateInFront(context).addToPalette(target->color, AppState::Duplicates::refuse,
                                           target->name);
}

void putOnBench(const Context& context) {
    const auto target = context.window->target();
    if (!target) return;
    auto& bench = context.ui.models.bench();
    auto text = addedToBenchText(target->color);
    if (const auto* holder = bench.columnHolding(target->color))
        text = alreadyOnBenchText(target->color, bench.describeOrigin(*holder, {}));
    else
        bench.addStagedToBench(bench.stagedColumn(target->color, target->name));
    context.ui.services.toasts.show(std::move(text), kBriefly, {}, context.window->place());
}

const ActionRow kViews[] = {
    modeRow<Mode::pair>(ActionId::showPair, "showPair", "Pair", "Ctrl+1"),
    modeRow<Mode::matrix>(ActionId::showMatrix, "showMatrix", "Matrix", "Ctrl+2"),
    modeRow<Mode::ladder>(ActionId::showLadder, "showLadder", "Ladder", "Ctrl+3"),
    measureRow<Measure::wcag>(ActionId::measureWcag, "measureWcag", "WCAG"),
    measureRow<Measure::apca>(ActionId::measureApca, "measureApca", "APCA"),
    {.value = ActionId::contrastTarget,
     .raw = "contrastTarget",
     .text = "Target",
     .in = WindowKind::contrast,
     .menu = MenuId::contrast,
     .fill = fillTargets},
    {.value = ActionId::useAsText,
     .raw = "useAsText",
     .text = "Use as the Text",
     .keys = "T",
     .scope = KeyScope::canvas,
     .in = WindowKind::contrast,
     .menu = MenuId::contrast,
     .isEnabled = hasEntry,
     .perform = giveRole<Role::text>},
    {.value = ActionId::useAsGround,
     .raw = "useAsGround",
     .text = "Use as the Ground",
     .keys = "G",
     .scope = KeyScope::canvas,
     .in = WindowKind::contrast,
     .menu = MenuId::contrast,
     .isEnabled = hasEntry,
     .perform = giveRole<Role::ground>},
    {.value = ActionId::swapRoles,
     .raw = "swapRoles",
     .text = "Swap the text and the ground",
     .keys = "X",
     .scope = KeyScope::canvas,
     .in = WindowKind::contrast,
     .menu = MenuId::contrast,
     .isEnabled = hasPair,
     .perform = [](const Context& c) { board(c).exchangeRoles(); }},
    {.value = ActionId::editSpecimen,
     .raw = "editSpecimen",
     .text = "Edit the Specimen",
     .keys = "F2",
     .in = WindowKind::contrast,
     .menu = MenuId::contrast,
     .isEnabled = hasPair,
     .perform =
         [](const Context& c) {
             board(c).mode = Mode::pair;
             board(c).specimenEditRequested = true;
         }},
    {.value = ActionId::copyFigure,
     .raw = "copyFigure",
     .text = "Copy Figure",
     .keys = "Ctrl+Shift+C",
     .in = WindowKind::contrast,
     .menu = MenuId::contrast,
     .isEnabled = [](const Context& c) { return !c.contrast->figureText().isEmpty(); },
     .perform = [](const Context& c) { copyFigure(c.ui, c.contrast->figureText()); }},
    {.value = ActionId::copyMatrix,
     .raw = "copyMatrix",
     .text = "Copy the Matrix as a Table",
     .in = WindowKind::contrast,
     .menu = MenuId::contrast,
     .isEnabled = hasEntries,
     .perform = [](const Context& c) { copyMatrix(c.ui); }},
};

const ActionRow kColours[] = {
    {.value = ActionId::sortDarkToLight,
     .raw = "sortDarkToLight",
     .text = "Sort Dark to Light",
     .keys = "D",
     .scope = KeyScope::canvas,
     .in = WindowKind::contrast,
     .menu = MenuId::contrast,
     .isEnabled = hasEntries,
     .perform = [](const Context& c) { sending(c).sortByLightness(false); }},
    {.value = ActionId::sortLightToDark,
     .raw = "sortLightToDark",
     .text = "Sort Light to Dark",
     .keys = "Shift+D",
     .scope = KeyScope::canvas,
     .in = WindowKind::contrast,
     .menu = MenuId::contrast,
     .isEnabled = hasEntries,
     .perform = [](const Context& c) { sending(c).sortByLightness(true); }},
    // The other way when they stand from dark to light.
    {.value = ActionId::sortByLightness,
     .raw = "sortByLightness",
     .text = "Sort by Lightness",
     .in = WindowKind::contrast,
     .isEnabled = hasEntries,
     .perform = [](const Context& c) { sending(c).sortByLightness(board(c).isDarkToLight()); }},
    {.value = ActionId::addEntryToPalette,
     .raw = "addEntryToPalette",
     .text = "Add to Palette",
     .in = WindowKind::contrast,
     .menu = MenuId::contrast,
     .isEnabled = hasEntry,
     .perform = addToPalette},
    {.value = ActionId::putEntryOnBench,
     .raw = "putEntryOnBench",
     .text = "Put on the Bench",
     .keys = "B",
     .scope = KeyScope::canvas,
     .in = WindowKind::contrast,
     .menu = MenuId::contrast,
     .isEnabled = hasEntry,
     .perform = putOnBench},
    {.value = ActionId::renameEntry,
     .raw = "renameEntry",
     .text = "Rename…",
     .in = WindowKind::contrast,
     .menu = MenuId::contrast,
     .isEnabled = hasEntry,
     .perform = [](const Context& c) { c.contrast->beginRename(); }},
    {.value = ActionId::moveEntryUp,
     .raw = "moveEntryUp",
     .text = "Move Up",
     .keys = "Ctrl+Shift+Up",
     .in = WindowKind::contrast,
     .menu = MenuId::contrast,
     .isEnabled = hasEntry,
     .perform = [](const Context& c) { moveBy(c, -1); }},
    {.value = ActionId::moveEntryDown,
     .raw = "moveEntryDown",
     .text = "Move Down",
     .keys = "Ctrl+Shift+Down",
     .in = WindowKind::contrast,
     .menu = MenuId::contrast,
     .isEnabled = hasEntry,
     .perform = [](const Context& c) { moveBy(c, 1); }},
    {.value = ActionId::removeEntry,
     .raw = "removeEntry",
     .text = "Remove",
     .keys = "Del; Backspace",
     .scope = KeyScope::canvas,
     .in = WindowKind::contrast,
     .menu = MenuId::contrast,
     .isEnabled = hasEntry,
     .perform =
         [](const Context& c) {
             if (const auto id = c.contrast->entry()) sending(c).remove(*id);
         }},
};

std::vector<ActionRow> gathered() {
    std::vector<ActionRow> rows(std::begin(kViews), std::end(kViews));
    rows.insert(rows.end(), std::begin(kColours), std::end(kColours));
    return rows;
}

} // namespace

std::span<const ActionRow> ofContrast() {
    static const auto rows = gathered();
    return rows;
}

} // namespace tintra::actionRows
