#include "palettes/PaletteExport.h"
#include "palettes/UniqueNames.h"
#include "palettes/writers/WriterText.h"
#include "platform/ColourList.h"

namespace tintra {

// A list is named after its file, so the palette's name is not inside.
std::optional<Bytes> PaletteExport::clr(std::string_view /*name*/, std::span<const Entry> entries) {
    UniqueNames keys(' '); // cleaning may have made two names equal
    std::vector<ColourListEntry> list;
    list.reserve(entries.size());
    for (const auto& entry : entries)
        list.push_back({keys.add(singleLine(entry.name)), entry.color.ns()});
    return writeColourList(list);
}

} // namespace tintra
