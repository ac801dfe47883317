#include "palettes/Stylesheet.h"
#include "palettes/readers/Reading.h"
#include "platform/Unicode.h"

namespace tintra::PaletteFile {

std::optional<std::vector<Swatch>> stylesheet(ByteView data, LeftOut*) {
    const auto text = asText(data);
    if (!isValidUtf8(text)) return std::nullopt;
    return unlessEmpty(Stylesheet::read(text));
}

} // namespace tintra::PaletteFile
