#include "ui/library/LibrarySort.h"

#include "state/Preferences.h"
#include "ui/shared/Text.h"

#include <QMenu>
#include <array>

namespace tintra {
namespace {

struct SortKey {
    const char* title;
    bool byName, byDate;
};
constexpr std::array kKeys{SortKey{"Name", true, false}, SortKey{"Colours", false, false},
                           SortKey{"Date changed", false, true}};

/// The date goes before the name.
bool isChosen(const SortKey& key, const Preferences& preferences) {
    if (preferences.librarySortByDate) return key.byDate;
    return !key.byDate && key.byName == preferences.librarySortByName;
}

} // namespace

QString librarySortTitle(const Preferences& preferences) {
    for (const auto& key : kKeys)
        if (isChosen(key, preferences)) return worded(key.title);
    return {};
}

void fillLibrarySortKeys(QMenu& menu, Preferences& preferences) {
    for (const auto& key : kKeys) {
        auto* action = menu.addAction(worded(key.title), &menu, [&preferences, key] {
            preferences.librarySortByName = key.byName;
            preferences.librarySortByDate = key.byDate;
        });
        action->setCheckable(true);
        action->setChecked(isChosen(key, preferences));
    }
}

void fillLibrarySortMenu(QMenu& menu, Preferences& preferences) {
    fillLibrarySortKeys(menu, preferences);
    menu.addSeparator();
    for (const bool ascends : {true, false}) {
        auto* action =
            menu.addAction(worded(ascends ? "Ascending" : "Descending"), &menu,
                           [&preferences, ascends] { preferences.librarySortAscending = ascends; });
        action->setCheckable(true);
        action->setChecked(preferences.librarySortAscending.value() == ascends);
    }
}

} // namespace tintra
