#include "ui/shared/LocationMenu.h"

#include "palettes/PaletteLocation.h"
#include "state/PaletteLocations.h"
#include "ui/shared/Text.h"

#include <QMenu>

namespace tintra {

void fillLocationMenu(QMenu& menu, PaletteLocations& locations, const PaletteLocation& location) {
    const auto id = location.id;
    menu.addAction(worded("Rename…"), &menu, [&locations, id] { locations.rename(id); });
    menu.addAction(worded("Tag…"), &menu, [&locations, id] { locations.tag(id); });
    if (location.tag)
        menu.addAction(worded("Remove Tag"), &menu, [&locations, id] { locations.untag(id); });
    const bool includes = location.includesStylesheets;
    auto* sheets = menu.addAction(shown("Include Stylesheets"), &menu, [&locations, id, includes] {
        locations.setIncludesStylesheets(id, !includes);
    });
    sheets->setCheckable(true);
    sheets->setChecked(includes);
    menu.addSeparator();
    menu.addAction(worded("Reveal"), &menu, [&locations, id] { locations.reveal(id); });
    menu.addAction(worded("Choose Again…"), &menu, [&locations, id] { locations.rechoose(id); });
    menu.addSeparator();
    menu.addAction(worded("Stop Watching"), &menu, [&locations, id] { locations.remove(id); });
}

} // namespace tintra
