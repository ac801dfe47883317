#include "palettes/PasteColours.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>

using namespace tintra;

/// Reads lines of colours; every colour must hold finite numbers and an alpha of 0...1.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    PasteColours::codeColour(text);
    PasteColours::numbers("rgb", text);
    for (const auto& colour : PasteColours::parse(text)) {
        const bool isFinite =
            std::isfinite(colour.r) && std::isfinite(colour.g) && std::isfinite(colour.b);
        if (!isFinite || !(colour.a >= 0 && colour.a <= 1)) std::abort();
    }
    return 0;
}
