#pragma once

#include <QString>

class QMenu;

namespace tintra {

class Preferences;

/// "Name", "Colours" or "Date changed": what the Library is sorted by.
QString librarySortTitle(const Preferences& preferences);
/// The three, and whether they ascend.
void fillLibrarySortMenu(QMenu& menu, Preferences& preferences);
/// The three alone.
void fillLibrarySortKeys(QMenu& menu, Preferences& preferences);

} // namespace tintra
