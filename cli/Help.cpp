#include "cli/Help.h"

#include <fmt/format.h>

#include <algorithm>

namespace tintra::cli {

HelpFormatter::HelpFormatter() {
    label("REQUIRED", "");
    label("TEXT", "TEXT");
    label("SUBCOMMAND", "COMMAND");
    label("Positionals", "Arguments");
    column_width(32);
}

std::string HelpFormatter::make_description(const CLI::App* app) const {
    const auto all = commands();
    const auto command = std::find_if(all.begin(), all.end(), [app](const Command& each) {
        return each.name == app->get_name();
    });
    if (command == all.end()) return Formatter::make_description(app);
    return std::string(command->description) + '\n';
}

std::string examplesText(const Command& command) {
    std::string text = "Examples:\n";
    for (const auto& [line, meaning] : command.examples)
        text += fmt::format("  {}\n      {}\n", line, meaning);
    return text;
}

} // namespace tintra::cli
