#include "colour/ContrastLightness.h"
#include "colour/ContrastTarget.h"

namespace tintra::Contrast {

namespace {

std::optional<ReachProposal> moved(Role role, const WashColor& text, const WashColor& ground,
                                   double need) {
    const bool movesText = role == Role::text;
    const auto ratioWith = [&](const WashColor& candidate) {
        return movesText ? wcagRatio(candidate, ground) : wcagRatio(text, candidate);
    };
    const auto reached = reach(movesText ? text : ground, [&](const WashColor& candidate) {
        return reaches(ratioWith(candidate), need);
    });
    if (!reached) return std::nullopt;
    std::string title = reached->lighter ? "Lighten the " : "Darken the ";
    title += movesText ? "text" : "ground";
    return ReachProposal{reached->colour, std::move(title), ratioWith(reached->colour),
                         reached->distance, reached->eased};
}

std::string messageFor(const ReachReport& report) {
    std::string message;
    if (!report.text) message = noReachText(Role::text);
    if (report.ground) return message;
    if (!message.empty()) message += ' ';
    return message.append(noReachText(Role::ground));
}

} // namespace

std::string_view noReachText(Role role) {
    return role == Role::text ? "No lightness of the text reaches it on this ground."
                              : "No lightness of the ground reaches it under this text.";
}

ReachReport reachReport(const WashColor& text, const WashColor& ground, Target target,
                        LargeText large) {
    ReachReport report{target, need(target, large), std::nullopt, std::nullopt, ""};
    if (reaches(wcagRatio(text, ground), report.need)) {
        report.message = "This pair already reaches it.";
        return report;
    }
    report.text = moved(Role::text, text, ground, report.need);
    report.ground = moved(Role::ground, text, ground, report.need);
    report.message = messageFor(report);
    return report;
}

} // namespace tintra::Contrast
