#include "state/NoticeTexts.h"

#include "state/PaletteSwatch.h"

#include <fmt/format.h>

namespace tintra {

std::string noticeCode(const WashColor& color) {
    // The identity is the plain sRGB code, so that a notice names the colour by what tells swatches
    // apart, whatever RGB space is selected.
    const auto identity = color.identity();
    return "#" + (color.isOpaque() ? identity.substr(0, 6) : identity);
}

std::string paletteFullText(std::size_t held) {
    return fmt::format("The palette is full at {}", held);
}

std::string batchText(std::size_t offered, std::size_t added, std::size_t skipped,
                      std::size_t held) {
    if (added + skipped < offered) return paletteFullText(held);
    if (added == 0) return fmt::format("All {} already in this palette", offered);
    auto text = fmt::format("Added {} to the palette", added);
    if (skipped > 0) text += fmt::format(" · {} already there", skipped);
    return text;
}

std::string counted(std::size_t count, std::string_view one, std::string_view many) {
    return fmt::format("{} {}", count, count == 1 ? one : many);
}

} // namespace tintra
