#include "cli/docs/Pages.h"

#include <fmt/format.h>

namespace tintra::cli {

Pages pages() {
    Pages pages;
    CLI::App app;
    GlobalOptions options;
    Declaration globals(app);
    declareGlobals(globals, options);
    pages.globals = globals.parameters();
    for (const auto& command : commands()) {
        CLI::App sub;
        Declaration declaration(sub);
        command.declare(declaration);
        pages.commands.push_back({command, declaration.parameters()});
    }
    return pages;
}

std::vector<std::string> namesOf(const Parameter& parameter) {
    std::vector<std::string> names;
    std::string_view left = parameter.names;
    while (!left.empty()) {
        const auto comma = std::min(left.find(','), left.size());
        names.emplace_back(left.substr(0, comma));
        left.remove_prefix(std::min(comma + 1, left.size()));
    }
    return names;
}

std::string synopsis(const CommandPage& page) {
    auto text = fmt::format("tintra {} [OPTION]…", page.command.name);
    for (const auto& parameter : page.own) {
        if (!parameter.positional) continue;
        const auto name = parameter.names + (parameter.repeated ? "…" : "");
        text += parameter.required ? ' ' + name : fmt::format(" [{}]", name);
    }
    return text;
}

} // namespace tintra::cli
