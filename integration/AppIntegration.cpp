#include "integration/AppIntegration.h"

#include "colour/CaseTable.h"
#include "platform/Scripting.h"

#include <array>

namespace tintra {
namespace {

struct Row {
    AppIntegration value;
    std::string_view raw, bundleIdentifier;
};
constexpr std::array kRows{
    Row{AppIntegration::photoshop, "photoshop", "com.adobe.Photoshop"},
    Row{AppIntegration::illustrator, "illustrator", "com.adobe.illustrator"},
};
static_assert(inCaseOrder(kRows));
constexpr auto kCases = casesOf(kRows);

} // namespace

std::string_view rawValue(AppIntegration integration) {
    return rowOf(kRows, integration).raw;
}

std::optional<AppIntegration> appIntegration(std::string_view raw) {
    return caseOf(kRows, raw);
}

std::span<const AppIntegration> allAppIntegrations() {
    return kCases;
}

std::string_view bundleIdentifier(AppIntegration integration) {
    return rowOf(kRows, integration).bundleIdentifier;
}

bool isInstalled(AppIntegration integration, const Scripting& scripting) {
    return scripting.finds(bundleIdentifier(integration));
}

} // namespace tintra
