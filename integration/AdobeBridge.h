#pragma once

#include "colour/ColorProfiles.h"
#include "colour/WashColor.h"
#include "integration/AppIntegration.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tintra::AdobeBridge {

/// A place for a colour in a design application.
enum class Target { photoshopForeground, photoshopBackground, illustratorFill, illustratorStroke };

std::string_view rawValue(Target target);
/// What menus call it within its application: "Foreground Colour".
std::string_view title(Target target);
AppIntegration application(Target target);
/// All targets in menu order.
std::span<const Target> allTargets();

/// The statement that puts the colour there: 0...255 numbers in the RGB space selected in
/// `profiles`, alpha dropped.
std::string statement(const WashColor& colour, Target target, const ColorProfiles& profiles);

/// Runs the statement; nothing on success, else the message to show. Main loop; returns when the
/// application has answered.
std::optional<std::string> send(const WashColor& colour, Target to, const ColorProfiles& profiles,
                                Scripting& scripting);

} // namespace tintra::AdobeBridge
