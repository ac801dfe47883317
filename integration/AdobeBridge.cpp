#include "integration/AdobeBridge.h"

#include "colour/CaseTable.h"
#include "platform/Scripting.h"

#include <fmt/format.h>

#include <array>

namespace tintra::AdobeBridge {
namespace {

struct Row {
    Target value;
    AppIntegration application;
    std::string_view raw, title, property;
};
constexpr std::array kRows{
    Row{Target::photoshopForeground, AppIntegration::photoshop, "photoshopForeground",
        "Foreground Colour", "foreground color"},
    Row{Target::photoshopBackground, AppIntegration::photoshop, "photoshopBackground",
        "Background Colour", "background color"},
    Row{Target::illustratorFill, AppIntegration::illustrator, "illustratorFill", "Fill Colour",
        "default fill color of document 1"},
    Row{Target::illustratorStroke, AppIntegration::illustrator, "illustratorStroke",
        "Stroke Colour", "default stroke color of document 1"},
};
static_assert(inCaseOrder(kRows));
constexpr auto kCases = casesOf(kRows);

} // namespace

std::string_view rawValue(Target target) {
    return rowOf(kRows, target).raw;
}

std::string_view title(Target target) {
    return rowOf(kRows, target).title;
}

AppIntegration application(Target target) {
    return rowOf(kRows, target).application;
}

std::span<const Target> allTargets() {
    return kCases;
}

std::string statement(const WashColor& colour, Target target, const ColorProfiles& profiles) {
    const auto rgb = colour.rgb255(profiles.rgbSpace());
    return fmt::format("tell application id \"{}\" to set {} to {{class:RGB color, red:{}, "
                       "green:{}, blue:{}}}",
                       bundleIdentifier(application(target)), rowOf(kRows, target).property, rgb.r,
                       rgb.g, rgb.b);
}

std::optional<std::string> send(const WashColor& colour, Target to, const ColorProfiles& profiles,
                                Scripting& scripting) {
    const auto error = scripting.run(statement(colour, to, profiles));
    if (!error) return std::nullopt;
    return error->message.empty() ? "Could not reach the application." : error->message;
}

} // namespace tintra::AdobeBridge
