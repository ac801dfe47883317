#pragma once

#include "palettes/FoldedText.h"
#include "palettes/PaletteCache.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// How the Library finds palettes: by a colour that one of their swatches matches, or by a text in
// the palette's or a swatch's name. Pure; any thread.

namespace tintra {

/// When two colours match, from narrow to wide.
enum class ColourMatch {
    exact, ///< within ΔE 1
    close, ///< within ΔE 3
    hue,   ///< within 10° of HSB hue, when both have a saturation of 0.15 at least
};

/// The persisted text, the badge and the explanation of a match; all in menu order.
std::string_view rawValue(ColourMatch match);
std::string_view badge(ColourMatch match);
std::string_view explanation(ColourMatch match);
std::optional<ColourMatch> colourMatch(std::string_view raw);
std::span<const ColourMatch> allColourMatches();

/// Why a palette was found.
struct PaletteHit {
    /// The swatch; none when the palette's own name matched.
    std::optional<std::size_t> index;
    /// ΔE (CIE76 under the selected illuminant), or degrees of hue; none for a match of text.
    std::optional<double> distance;
    bool operator==(const PaletteHit&) const = default;
};

/// The colour that the whole of a text is; nothing for a text that merely mentions one, and for
/// hexadecimal digits that may be a word ("facade" and "f80" are none; "#facade", "1e4d6b",
/// "red", "rgb(1 2 3)" and "255, 128, 0" are colours).
std::optional<WashColor> searchedColour(std::string_view text);

/// What a search field asks for.
class PaletteQuery {
public:
    /// The text is a colour when the whole of it is one, else words; a text in double quotes is
    /// words in any case ("\"coral\""). The illuminant is the one selected now.
    PaletteQuery(std::string_view text, ColourMatch match);

    bool isEmpty() const { return words_.isEmpty() && !color_; }
    const std::optional<WashColor>& color() const { return color_; }
    ColourMatch match() const { return match_; }

    /// The swatch of smallest distance, the earlier of equal ones; or the palette's name, else the
    /// first swatch name that holds the words. Letter case and accents do not count. An empty
    /// query finds nothing.
    std::optional<PaletteHit> hit(const FoldedText& paletteName,
                                  const CachedPalette& palette) const;

private:
    std::optional<PaletteHit> colourHit(const ComparedPalette& palette) const;
    std::optional<PaletteHit> wordsHit(const FoldedText& paletteName,
                                       const ComparedPalette& palette) const;

    ColourMatch match_;
    std::optional<WashColor> color_;
    LabIlluminant illuminant_;
    Lab lab_;                   ///< of the colour
    std::optional<double> hue_; ///< of the colour, unless it is greyish
    FoldedText words_;
};

/// A match that finds what a narrower one did not.
struct WiderMatch {
    ColourMatch match;
    std::size_t count; ///< of palettes
};
/// The next wider match under which the text finds something; nothing for a text of words.
std::optional<WiderMatch> widerMatch(std::string_view text, ColourMatch than,
                                     const std::function<std::size_t(const PaletteQuery&)>& count);

} // namespace tintra
