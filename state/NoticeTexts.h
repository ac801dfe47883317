#pragma once

#include "colour/Contrast.h"
#include "colour/WashColor.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// What notices say and how long they stay. Pure.

namespace tintra {

/// How long a notice of one send or refusal is shown, one that counts a batch, and one that
/// explains; seconds.
inline constexpr double kBriefly = 1.4;
inline constexpr double kForCounts = 2.8;
inline constexpr double kForExplaining = 2.5;

/// A colour as notices show it: "#RRGGBB", with the alpha byte behind it unless it is opaque.
std::string noticeCode(const WashColor& color);

/// "The palette is full at 256".
std::string paletteFullText(std::size_t held);

/// What a batch of adds reports; `offered` = `added` + `skipped` + those that found no room. Full
/// wins over counts.
std::string batchText(std::size_t offered, std::size_t added, std::size_t skipped,
                      std::size_t held);

/// "#RRGGBB is already in this palette".
std::string alreadyInPaletteText(const WashColor& color);

/// Why a drop that is to move cannot.
inline constexpr std::string_view kMoveRefusalText =
    "Only a palette's swatch moves · let go of ⌘ to add";

// The Bench

/// Of a palette swatch: that it was added, or that its alpha stays behind.
std::string addedToBenchText(const WashColor& color);
std::string stagedCopyText(const WashColor& color);
std::string tookOffBenchText(const WashColor& color);
/// Of colours that were put on the Bench together.
std::string benchBatchText(std::size_t added, std::size_t already);
/// `origin` as the Bench describes it.
std::string alreadyOnBenchText(const WashColor& color, std::string_view origin);

// Contrast

std::string alreadyInContrastText(const WashColor& color);
std::string tookOffContrastText(const WashColor& color);
std::string replacedInContrastText(const WashColor& was, const WashColor& is);
std::string contrastFullText(std::size_t capacity);
/// `letGo`: the name of the colour that made room; none when there was room.
std::string sentToContrastText(const WashColor& color, const std::optional<std::string>& letGo);
std::string roleInContrastText(const WashColor& color, Contrast::Role role,
                               const std::optional<std::string>& letGo);

/// What became of the colours of a palette that were all offered to the contrast board.
struct ContrastBatch {
    std::size_t offered = 0, sent = 0, already = 0;
    std::size_t heldBefore = 0; ///< entries of the board
};
/// Nothing when all were sent and none was there already: the board itself tells.
std::optional<std::string> contrastBatchText(const ContrastBatch& batch, std::size_t capacity);

/// Of sorting by lightness; `changed`: the colours stood in another order before.
std::string sortedText(bool lightestFirst, bool changed);

// Picking

std::string copiedText(const WashColor& color);
std::string noWindowText(const WashColor& color);

/// "1 colour", "3 colours": the count and the noun in its number.
std::string counted(std::size_t count, std::string_view one, std::string_view many);

} // namespace tintra
