#include "palettes/PaletteExport.h"
#include "platform/PngEncoder.h"

#include <algorithm>
#include <cmath>

namespace tintra {

namespace {

// The picture is a row of squares of 80 pixels. A palette that no row should hold goes on in
// further rows; beyond some thousand colours the squares shrink, so that the picture does not.
constexpr std::size_t kSide = 80;
constexpr std::size_t kColumns = 256;
constexpr std::size_t kMostPixels = kSide * kSide * 4096;

/// Where the squares lie; lengths in pixels.
struct Grid {
    std::size_t columns, rows, side;
};

Grid gridFor(std::size_t count) {
    const auto columns = std::min(count, kColumns);
    const auto pixels = static_cast<double>(kMostPixels) / static_cast<double>(count);
    const auto side = static_cast<std::size_t>(std::sqrt(pixels));
    return {columns, (count + columns - 1) / columns, std::clamp<std::size_t>(side, 1, kSide)};
}

Rgba8 pixelOf(const WashColor& colour) {
    const auto rgb = colour.srgb255();
    const auto byte = [](int value) { return static_cast<std::uint8_t>(value); };
    return {byte(rgb.r), byte(rgb.g), byte(rgb.b),
            byte(colour.isOpaque() ? 255 : byteOf(colour.a))};
}

} // namespace

std::optional<Bytes> PaletteExport::png(std::span<const Entry> entries) {
    if (entries.empty()) return std::nullopt;
    const auto grid = gridFor(entries.size());
    const auto paint = [&](std::size_t y, std::span<Rgba8> row) {
        if (y % grid.side != 0) return; // the same squares as the row of pixels above
        const auto line = entries.subspan(y / grid.side * grid.columns);
        std::fill(row.begin(), row.end(), Rgba8{}); // transparent after the last square
        for (std::size_t at = 0; at < std::min(line.size(), grid.columns); ++at)
            std::fill_n(row.subspan(at * grid.side).begin(), grid.side, pixelOf(line[at].color));
    };
    return encodePng(
        {static_cast<int>(grid.columns * grid.side), static_cast<int>(grid.rows * grid.side)},
        paint);
}

} // namespace tintra
