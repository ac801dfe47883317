// What only has a key.

#include "state/Models.h"
#include "ui/actions/ActionRows.h"
#include "ui/shared/NoticeBar.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace tintra::actionRows {
namespace {

void nextVision(const Context& context) {
    auto& vision = *context.window->vision();
    const auto all = allVisions();
    const auto now = std::ranges::find(all, vision.value());
    vision = now == all.end() || now + 1 == all.end() ? all.front() : *(now + 1);
}

template <std::size_t place>
void copyFavourite(const Context& context) {
    const auto favourites = context.ui.models.preferences().formatFavourites.value();
    context.window->copy(favourites[place]);
}

template <std::size_t place>
bool hasFavourite(const Context& context) {
    return hasTarget(context) &&
           context.ui.models.preferences().formatFavourites.value().size() > place;
}

template <std::size_t place>
constexpr ActionRow favouriteRow(ActionId id, std::string_view raw, const char* text,
                                 const char* key) {
    return {.value = id,
            .raw = raw,
            .text = text,
            .keys = key,
            .scope = KeyScope::canvas,
            .in = kEveryWindow,
            .isEnabled = hasFavourite<place>,
            .perform = copyFavourite<place>};
}

const ActionRow kRows[] = {
    {.value = ActionId::nextVision,
     .raw = "nextVision",
     .text = "Next Kind of Vision",
     .keys = "V",
     .scope = KeyScope::canvas,
     .in = kColourWindows,
     .perform = nextVision},
    {.value = ActionId::typicalVision,
     .raw = "typicalVision",
     .text = "Typical Vision",
     .keys = "Shift+V",
     .scope = KeyScope::canvas,
     .in = kColourWindows,
     .perform = [](const Context& c) { *c.window->vision() = Vision::typical; }},
    {.value = ActionId::peek,
     .raw = "peek",
     .text = "See the Colour Alone, While Held",
     .keys = "Space",
     .scope = KeyScope::canvas,
     .isEnabled = hasSwatch,
     .perform = [](const Context& c) { c.palette->setPeeking(true); }},
    {.value = ActionId::nextRegion,
     .raw = "nextRegion",
     .text = "Next Region",
     .keys = "F6",
     .in = kEveryWindow,
     .perform = [](const Context& c) { c.window->focusRegion(1); }},
    {.value = ActionId::previousRegion,
     .raw = "previousRegion",
     .text = "Previous Region",
     .keys = "Shift+F6",
     .in = kEveryWindow,
     .perform = [](const Context& c) { c.window->focusRegion(-1); }},
    {.value = ActionId::focusNotice,
     .raw = "focusNotice",
     .text = "Go to the Notice",
     .keys = "F8",
     .in = kEveryWindow,
     .isEnabled = [](const Context& c) { return c.window->notices().isVisible(); },
     .perform = [](const Context& c) { c.window->notices().setFocus(Qt::ShortcutFocusReason); }},
    {.value = ActionId::focusMenuBar,
     .raw = "focusMenuBar",
     .text = "Open the Menu Bar",
     .keys = "F10",
     .in = kEveryWindow,
     .perform = [](const Context& c) { c.window->openMenuBar(); }},
    {.value = ActionId::contextMenu,
     .raw = "contextMenu",
     .text = "Context Menu",
     .keys = "Shift+F10; Menu",
     .scope = KeyScope::canvas,
     .in = kEveryWindow,
     .perform = [](const Context& c) { c.window->showContextMenu(); }},
    favouriteRow<0>(ActionId::copyFavourite1, "copyFavourite1", "Copy as Favourite 1", "1"),
    favouriteRow<1>(ActionId::copyFavourite2, "copyFavourite2", "Copy as Favourite 2", "2"),
    favouriteRow<2>(ActionId::copyFavourite3, "copyFavourite3", "Copy as Favourite 3", "3"),
    favouriteRow<3>(ActionId::copyFavourite4, "copyFavourite4", "Copy as Favourite 4", "4"),
    favouriteRow<4>(ActionId::copyFavourite5, "copyFavourite5", "Copy as Favourite 5", "5"),
    favouriteRow<5>(ActionId::copyFavourite6, "copyFavourite6", "Copy as Favourite 6", "6"),
    favouriteRow<6>(ActionId::copyFavourite7, "copyFavourite7", "Copy as Favourite 7", "7"),
    favouriteRow<7>(ActionId::copyFavourite8, "copyFavourite8", "Copy as Favourite 8", "8"),
    favouriteRow<8>(ActionId::copyFavourite9, "copyFavourite9", "Copy as Favourite 9", "9"),
};

} // namespace

std::span<const ActionRow> ofKeys() {
    return kRows;
}

} // namespace tintra::actionRows
