#pragma once

#include "colour/WashColor.h"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// How one colour reads on another, by WCAG 2.2 and by APCA (0.0.98G-4g). Pure functions; any
/// thread. Red, green and blue are clamped to 0...1 first; a ground counts as opaque whatever its
/// alpha.
namespace tintra::Contrast {

/// What a reading is enough for, from little to much.
enum class Grade {
    below,    ///< for nothing: under 3:1, under Lc 45
    large,    ///< large text and interface parts: 3:1, Lc 45
    body,     ///< body text, AA: 4.5:1 (large text 3:1), Lc 60
    enhanced, ///< AAA: 7:1 (large text 4.5:1), Lc 75
};

/// The case's name, as data formats write it.
std::string_view caseName(Grade grade);
/// The text that a screen reader speaks; in terms of WCAG whatever is measured.
std::string_view spoken(Grade grade);
/// The grade of a stored number, 0 (below) to 3; nothing for any other.
std::optional<Grade> gradeFromRaw(int raw);

/// Whether WCAG counts a text as large and asks less contrast of it.
enum class LargeText { no, yes };

/// By size in px and weight (100...900): from 24 px, or bold (700) from 18.66 px.
LargeText isLargeText(double sizePx, int weight);

/// The text as it appears on the ground: mixed by its alpha (0...1) in encoded sRGB, opaque.
WashColor composited(const WashColor& text, const WashColor& ground);

/// WCAG 2.2 contrast ratio, 1...21, of the composited text; the same both ways for opaque colours.
double wcagRatio(const WashColor& text, const WashColor& ground);

/// A ratio with two decimals, from 10 on with one, cut off so that it claims no level it misses.
std::string ratioText(double ratio);

/// `large` is no grade of large text.
Grade wcagGrade(double ratio, LargeText large);

/// Whether a reading reaches a level; float noise below it is forgiven.
constexpr bool reaches(double reading, double level) {
    return reading + 1e-9 >= level;
}

/// APCA lightness contrast Lc, about -108...106: positive for dark text on a lighter ground, 0
/// where the pair is too close to tell.
double apcaLc(const WashColor& text, const WashColor& ground);

/// Lc as a whole number, cut off, with U+2212 before a negative one.
std::string lcText(double lc);

/// Of the amount of Lc, whatever its sign.
Grade apcaGrade(double lc);

/// Where a colour has to go to pass.
struct Reached {
    WashColor colour;    ///< whole bytes of sRGB; the alpha of the colour that moved
    bool lighter;        ///< lightness was raised, not lowered
    bool eased;          ///< chroma was lowered by more than 0.004 to stay in sRGB
    double distance = 0; ///< change of OKLCH lightness, above 0
};

/// The smallest change of OKLCH lightness, in steps of 0.001 at the same hue and, as far as sRGB
/// goes, the same chroma, whose colour passes; the lighter of two equally near. Nothing when none
/// does. The colour itself is not tried. `passes` sees at most 1001 colours.
std::optional<Reached> reach(const WashColor& moving,
                             const std::function<bool(const WashColor&)>& passes);

/// A place in a pair.
enum class Role { text, ground };

/// The OKLCH lightnesses (0...1, rising, within 0.0025) at which the ratio of the moving colour in
/// its role with the other colour crosses one of the given ratios; several or none for a ratio.
std::vector<double> thresholdLightnesses(const WashColor& moving, const WashColor& against,
                                         Role role, std::span<const double> thresholds);

/// The weight that a browser takes of those that a face has (CSS Fonts 4, font matching); nothing
/// when it has none.
std::optional<int> cssMatch(int desired, std::span<const int> among);

/// Whether a browser would thicken the weight it took: 600 or more was asked, less was there.
bool needsSyntheticBold(int desired, int used);

} // namespace tintra::Contrast
