#include "palettes/PaletteSearch.h"

#include "colour/CaseTable.h"
#include "colour/ColorProfiles.h"
#include "platform/Unicode.h"

#include <array>

namespace tintra {

namespace {

struct MatchRow {
    ColourMatch value;
    std::string_view raw, badge, explanation;
    double within; ///< ΔE, or degrees of hue
};
constexpr std::array kMatches{
    MatchRow{ColourMatch::exact, "exact", "EXACT", "the same colour to the eye, within ΔE 1", 1},
    MatchRow{ColourMatch::close, "close", "CLOSE", "within ΔE 3, a just-noticeable step", 3},
    MatchRow{ColourMatch::hue, "hue", "SAME HUE", "within 10° on the wheel, at any lightness", 10},
};
static_assert(inCaseOrder(kMatches));
constexpr auto kAllMatches = casesOf(kMatches);

/// The words of a text in double quotes; nothing for any other text.
std::optional<std::string_view> quoted(std::string_view text) {
    const auto whole = trimmed(text);
    if (whole.size() < 2 || !whole.starts_with('"') || !whole.ends_with('"')) return std::nullopt;
    return whole.substr(1, whole.size() - 2);
}

} // namespace

std::string_view rawValue(ColourMatch match) {
    return rowOf(kMatches, match).raw;
}

std::string_view badge(ColourMatch match) {
    return rowOf(kMatches, match).badge;
}

std::string_view explanation(ColourMatch match) {
    return rowOf(kMatches, match).explanation;
}

std::optional<ColourMatch> colourMatch(std::string_view raw) {
    return caseOf(kMatches, raw);
}

std::span<const ColourMatch> allColourMatches() {
    return kAllMatches;
}

PaletteQuery::PaletteQuery(std::string_view text, ColourMatch match)
    : match_(match), illuminant_(ColorProfiles::shared().labIlluminant()) {
    const auto words = quoted(text);
    if (!words) color_ = searchedColour(text);
    if (!color_) {
        words_ = FoldedText(words.value_or(text));
        return;
    }
    lab_ = color_->lab(illuminant_);
    hue_ = comparableHue(*color_);
}

std::optional<PaletteHit> PaletteQuery::hit(const FoldedText& paletteName,
                                            const CachedPalette& palette) const {
    if (isEmpty()) return std::nullopt;
    return color_ ? colourHit(palette.compared) : wordsHit(paletteName, palette.compared);
}

std::optional<PaletteHit> PaletteQuery::colourHit(const ComparedPalette& palette) const {
    std::optional<ComparedPalette::Nearest> nearest;
    if (match_ != ColourMatch::hue)
        nearest = palette.nearest(lab_, illuminant_);
    else if (hue_)
        nearest = palette.nearestHue(*hue_);
    if (!nearest || nearest->distance > rowOf(kMatches, match_).within + kMatchTolerance)
        return std::nullopt;
    return PaletteHit{nearest->index, nearest->distance};
}

std::optional<PaletteHit> PaletteQuery::wordsHit(const FoldedText& paletteName,
                                                 const ComparedPalette& palette) const {
    if (paletteName.holds(words_)) return PaletteHit{};
    const auto swatch = palette.firstNamed(words_);
    if (!swatch) return std::nullopt;
    return PaletteHit{swatch, std::nullopt};
}

std::optional<WiderMatch> widerMatch(std::string_view text, ColourMatch than,
                                     const std::function<std::size_t(const PaletteQuery&)>& count) {
    for (const auto match : allColourMatches()) {
        const PaletteQuery query(text, match);
        if (match <= than || !query.color()) continue;
        if (const auto found = count(query)) return WiderMatch{match, found};
    }
    return std::nullopt;
}

} // namespace tintra
