#include "palettes/PaletteExport.h"

#include "colour/ColorNames.h"
#include "palettes/UniqueNames.h"

namespace tintra {

std::vector<PaletteExport::Entry>
PaletteExport::entries(std::span<const WashColor> colors,
                       std::span<const std::optional<std::string>> names) {
    UniqueNames unique(' ');
    std::vector<Entry> list;
    list.reserve(colors.size());
    for (std::size_t at = 0; at < colors.size(); ++at) {
        const bool isNamed = at < names.size() && names[at] && !names[at]->empty();
        list.push_back(
            {colors[at], unique.add(isNamed ? *names[at] : ColorNames::shared().name(colors[at]))});
    }
    return list;
}

} // namespace tintra
