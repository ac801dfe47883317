#include "cli/Commands.h"
#include "colour/ColorProfiles.h"

#include <fmt/format.h>

namespace tintra::cli {

namespace {

std::vector<std::string> rgbNames() {
    std::vector<std::string> names;
    for (const auto& space : ColorProfiles::rgbSpaces())
        names.push_back(space.name);
    return names;
}

/// The built-in profile leads; those on disk follow.
std::vector<std::string> cmykNames(const ColorProfiles& profiles) {
    std::vector<std::string> names{std::string(ColorProfiles::kDefaultCmyk)};
    for (const auto& profile : profiles.cmykProfiles())
        if (profile.name != names.front()) names.push_back(profile.name);
    return names;
}

void printList(Session& session, std::string_view title, const std::vector<std::string>& names,
               const std::string& selected) {
    session.printLine(title);
    for (const auto& name : names)
        session.printLine(fmt::format("{} {}", name == selected ? '*' : ' ', name));
}

} // namespace

Action declareProfiles(Declaration&) {
    return [](Session& session) {
        auto& profiles = ColorProfiles::shared();
        profiles.loadIfNeeded();
        const auto illuminant = rawValue(profiles.labIlluminant());
        if (session.json()) {
            session.printJson({{"rgb", rgbNames()},
                               {"cmyk", cmykNames(profiles)},
                               {"selected",
                                {{"rgb", profiles.selectedRGB()},
                                 {"cmyk", profiles.selectedCMYK()},
                                 {"illuminant", illuminant}}}});
            return;
        }
        printList(session, "RGB", rgbNames(), profiles.selectedRGB());
        printList(session, "CMYK", cmykNames(profiles), profiles.selectedCMYK());
        printList(session, "Illuminant", {"d50", "d65"}, std::string(illuminant));
    };
}

} // namespace tintra::cli
