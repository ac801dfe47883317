#include "palettes/Stylesheet.h"

#include "fuzz/PaletteFuzzer.h"

#include <set>
#include <string>

/// Reads a stylesheet from a file of any bytes and from a text of any bytes, where no identity may
/// come twice.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tintra::fuzzPalette(data, size, tintra::PaletteFile::Kind::stylesheet);
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    std::set<std::string> seen;
    for (const auto& swatch : tintra::Stylesheet::read(text))
        if (!seen.insert(swatch.color.identity()).second) std::abort();
    tintra::Stylesheet::looksLikeStylesheet(text);
    tintra::Stylesheet::cssColour(text);
    tintra::Stylesheet::displayName(text);
    return 0;
}
