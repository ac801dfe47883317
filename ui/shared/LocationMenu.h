#pragma once

class QMenu;

namespace tintra {

class PaletteLocations;
struct PaletteLocation;

/// What can be done with a folder that the Library watches. The menu may outlive the location, not
/// `locations`.
void fillLocationMenu(QMenu& menu, PaletteLocations& locations, const PaletteLocation& location);

} // namespace tintra
