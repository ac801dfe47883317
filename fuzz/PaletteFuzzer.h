#pragma once

#include "palettes/PaletteFile.h"
#include "platform/Unicode.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace tintra {

/// Reads the bytes as one kind of palette and aborts on a swatch that no reader may give: a colour
/// that is no number, an alpha outside 0...1, a name that is empty or no UTF-8.
inline void fuzzPalette(const std::uint8_t* data, std::size_t size, PaletteFile::Kind kind) {
    PaletteFile::LeftOut leftOut;
    const auto read = PaletteFile::read(std::as_bytes(std::span(data, size)), kind, &leftOut);
    if (leftOut.counts().size() > 20 || (read && read->empty())) std::abort();
    if (!read) return;
    for (const auto& [colour, name] : *read) {
        if (!std::isfinite(colour.r + colour.g + colour.b)) std::abort();
        if (!(colour.a >= 0 && colour.a <= 1)) std::abort();
        if (name && (name->empty() || !isValidUtf8(*name))) std::abort();
    }
}

} // namespace tintra
