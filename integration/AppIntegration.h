#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace tintra {

class Scripting;

/// A design application that colours can be sent to.
enum class AppIntegration { photoshop, illustrator };

/// The persisted text, as `Preferences::enabledIntegrations` holds it; all in menu order.
std::string_view rawValue(AppIntegration integration);
std::optional<AppIntegration> appIntegration(std::string_view raw);
std::span<const AppIntegration> allAppIntegrations();
/// Under which the platform knows the application.
std::string_view bundleIdentifier(AppIntegration integration);

/// Whether the platform finds the application. Main loop.
bool isInstalled(AppIntegration integration, const Scripting& scripting);

} // namespace tintra
