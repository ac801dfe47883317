#include "colour/ContrastTarget.h"

#include "colour/CaseTable.h"
#include "platform/Number.h"

namespace tintra::Contrast {

namespace {

struct TargetRow {
    Target value;
    std::string_view raw;
    std::string_view level;
    double need, needOfLarge;
};

constexpr std::array kTargets{
    TargetRow{Target::aa, "aa", "AA", 4.5, 3},
    TargetRow{Target::aaa, "aaa", "AAA", 7, 4.5},
    TargetRow{Target::parts, "parts", "AA", 3, 3},
};
static_assert(inCaseOrder(kTargets));
constexpr auto kTargetCases = casesOf(kTargets);

std::string passWord(double ratio, double level) {
    return reaches(ratio, level) ? "passes" : "fails";
}

} // namespace

std::string_view rawValue(Target target) {
    return rowOf(kTargets, target).raw;
}
std::optional<Target> target(std::string_view raw) {
    return caseOf(kTargets, raw);
}
std::span<const Target> allTargets() {
    return kTargetCases;
}

double need(Target target, LargeText large) {
    const auto& row = rowOf(kTargets, target);
    return large == LargeText::yes ? row.needOfLarge : row.need;
}

std::string title(Target target, LargeText large) {
    std::string text(rowOf(kTargets, target).level);
    text += " · ";
    if (target == Target::parts)
        text += "interface parts";
    else
        text += large == LargeText::yes ? "large text" : "normal text";
    return text + ", " + fixed(need(target, large), 1);
}

std::string verdict(double ratio, LargeText large) {
    const auto at = [&](Target target) { return passWord(ratio, need(target, large)) + ' '; };
    const auto level = [&](Target target) { return shortest(need(target, large)) + ":1"; };
    return std::string(large == LargeText::yes ? "Large text" : "Normal text") +
           " under WCAG 2.2: " + at(Target::aa) + "AA at " + level(Target::aa) + ", " +
           at(Target::aaa) + "AAA at " + level(Target::aaa) +
           "; interface parts: " + at(Target::parts) + "at " + level(Target::parts);
}

} // namespace tintra::Contrast
