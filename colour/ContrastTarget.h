#pragma once

#include "colour/Contrast.h"

namespace tintra::Contrast {

/// The level of WCAG 2.2 that a pair is worked towards.
enum class Target {
    aa,
    aaa,
    parts, ///< interface parts and graphics, whatever the text
};

/// The persisted text of a target; all targets in menu order.
std::string_view rawValue(Target target);
std::optional<Target> target(std::string_view raw);
std::span<const Target> allTargets();

/// The ratio that a target asks: 3, 4.5 or 7.
double need(Target target, LargeText large);

/// What menus show, with the ratio.
std::string title(Target target, LargeText large);

/// The sentence that says which targets a ratio passes.
std::string verdict(double ratio, LargeText large);

/// A colour that takes one side of a pair to the target.
struct ReachProposal {
    WashColor colour;
    std::string title;   ///< what to do: "Lighten the text"
    double ratio = 0;    ///< of the pair with this colour
    double distance = 0; ///< change of OKLCH lightness
    bool eased = false;  ///< chroma had to give way to stay in sRGB
};

/// How a pair can be taken to a target by moving one of its colours.
struct ReachReport {
    Target target;
    double need;
    /// Nothing when no lightness of that side reaches, or the pair passes as it is.
    std::optional<ReachProposal> text, ground;
    /// Says that the pair passes or which sides do not reach; empty when both do.
    std::string message;
};

ReachReport reachReport(const WashColor& text, const WashColor& ground, Target target,
                        LargeText large);

} // namespace tintra::Contrast
