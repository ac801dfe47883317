#include "cli/Declaration.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>

namespace tintra::cli {

namespace {

/// A longer list is better looked up than printed.
constexpr std::size_t kMostPrinted = 16;

} // namespace

void Declaration::flag(const std::string& names, bool& target, const std::string& help) {
    record({names, "", help, Takes::nothing, {}, false, false, false});
    app_.add_flag(names, target, help);
}

std::string Declaration::withChoices(const std::string& help,
                                     const std::vector<std::string>& choices) {
    if (choices.size() > kMostPrinted) return help;
    return fmt::format("{}: {}", help, fmt::join(choices, ", "));
}

CLI::Validator Declaration::oneOf(const std::vector<std::string>& choices) {
    const auto check = [choices](const std::string& given) -> std::string {
        if (std::find(choices.begin(), choices.end(), given) != choices.end()) return {};
        if (choices.size() > kMostPrinted)
            return fmt::format("“{}” is not known; “tintra formats” lists what is", given);
        return fmt::format("“{}” is none of {}", given, fmt::join(choices, ", "));
    };
    return {check, ""};
}

} // namespace tintra::cli
