#include "state/NoticeTexts.h"

#include "state/PaletteSwatch.h"

#include <fmt/format.h>

namespace tintra {
namespace {

std::string madeRoomText(const std::optional<std::string>& letGo) {
    return letGo ? fmt::format(" · {} let go to make room", *letGo) : std::string();
}

} // namespace

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

std::string alreadyInPaletteText(const WashColor& color) {
    return noticeCode(color) + " is already in this palette";
}

// The Bench

std::string addedToBenchText(const WashColor& color) {
    if (!color.isOpaque()) return "Sent to Bench as opaque · alpha stays on the palette";
    return fmt::format("Added {} to the Bench", noticeCode(color));
}

std::string benchBatchText(std::size_t added, std::size_t already) {
    if (added == 0) return fmt::format("All {} already on the Bench", already);
    auto text = fmt::format("Added {} to the Bench", added);
    if (already > 0) text += fmt::format(" · {} already there", already);
    return text;
}

std::string stagedCopyText(const WashColor& color) {
    return fmt::format("Staged {} on the Bench · a copy, so edits there leave the harmony as it is",
                       noticeCode(color));
}

std::string tookOffBenchText(const WashColor& color) {
    return fmt::format("Took {} off the Bench", noticeCode(color));
}

std::string alreadyOnBenchText(const WashColor& color, std::string_view origin) {
    return fmt::format("{} is already on the Bench, {}", noticeCode(color), origin);
}

// Contrast

std::string alreadyInContrastText(const WashColor& color) {
    return noticeCode(color) + " is already in Contrast";
}

std::string tookOffContrastText(const WashColor& color) {
    return fmt::format("Took {} off Contrast", noticeCode(color));
}

std::string replacedInContrastText(const WashColor& was, const WashColor& is) {
    return fmt::format("Replaced {} with {}", noticeCode(was), noticeCode(is));
}

std::string contrastFullText(std::size_t capacity) {
    return fmt::format("Contrast is full at {}", capacity);
}

std::string sentToContrastText(const WashColor& color, const std::optional<std::string>& letGo) {
    return fmt::format("Sent {} to Contrast", noticeCode(color)) + madeRoomText(letGo);
}

std::string roleInContrastText(const WashColor& color, Contrast::Role role,
                               const std::optional<std::string>& letGo) {
    return fmt::format("{} is the {} in Contrast", noticeCode(color),
                       role == Contrast::Role::text ? "text" : "ground") +
           madeRoomText(letGo);
}

std::optional<std::string> contrastBatchText(const ContrastBatch& batch, std::size_t capacity) {
    const auto& [offered, sent, already, heldBefore] = batch;
    if (sent + already < offered) {
        const auto full = contrastFullText(capacity);
        if (sent == 0) return full;
        return fmt::format("Sent {}{} of {} · {}", heldBefore > 0 ? "" : "the first ", sent,
                           offered, full);
    }
    if (already == offered)
        return offered == 1 ? "Already in Contrast"
                            : fmt::format("All {} already in Contrast", offered);
    if (already == 0) return std::nullopt;
    return fmt::format("Sent {} to Contrast · {} already there", sent, already);
}

std::string sortedText(bool lightestFirst, bool changed) {
    if (changed) return lightestFirst ? "Sorted light to dark" : "Sorted dark to light";
    return lightestFirst ? "Already in order" : "Already in order, dark to light";
}

// Picking

std::string copiedText(const WashColor& color) {
    return "Copied " + noticeCode(color);
}

std::string noWindowText(const WashColor& color) {
    return "No palette window open · copied " + noticeCode(color);
}

std::string counted(std::size_t count, std::string_view one, std::string_view many) {
    return fmt::format("{} {}", count, count == 1 ? one : many);
}

} // namespace tintra
