#include "cli/docs/Pages.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace tintra::cli {

namespace {

/// Text inside a quoted specification of _arguments.
std::string zshQuoted(std::string_view text) {
    std::string out;
    for (const char c : text) {
        if (c == '\'')
            out += "'\\''";
        else if (c == '[' || c == ']' || c == ':' || c == '\\')
            out += std::string("\\") + c;
        else
            out += c;
    }
    return out;
}

std::string valueAction(const Parameter& parameter) {
    if (!parameter.choices.empty()) return fmt::format("({})", fmt::join(parameter.choices, " "));
    if (parameter.takes == Takes::file) return "_files";
    if (parameter.takes == Takes::folder) return "_files -/";
    return " ";
}

std::string specifications(const Parameter& parameter) {
    if (parameter.positional)
        return fmt::format("        '{}{}:{}:{}' \\\n", parameter.repeated ? "*" : "",
                           parameter.required || parameter.repeated ? "" : ":",
                           zshQuoted(parameter.names), valueAction(parameter));
    std::string text;
    for (const auto& name : namesOf(parameter)) {
        const auto value =
            parameter.takes == Takes::nothing
                ? std::string()
                : fmt::format(":{}:{}", parameter.placeholder, valueAction(parameter));
        text += fmt::format("        '{}{}[{}]{}' \\\n", parameter.repeated ? "*" : "", name,
                            zshQuoted(parameter.help), value);
    }
    return text;
}

std::string specifications(const std::vector<Parameter>& parameters) {
    std::string text;
    for (const auto& parameter : parameters)
        text += specifications(parameter);
    return text;
}

} // namespace

std::string zshCompletion(const Pages& pages) {
    std::string names, cases;
    for (const auto& page : pages.commands) {
        names +=
            fmt::format("        '{}:{}'\n", page.command.name, zshQuoted(page.command.summary));
        cases +=
            fmt::format("    ({})\n        _arguments -s \\\n{}{}        '--help[Help]'\n"
                        "        ;;\n",
                        page.command.name, specifications(page.own), specifications(pages.globals));
    }
    return fmt::format(R"(#compdef tintra
# zsh completion for tintra, written from its table of commands

_tintra() {{
    local context state state_descr line
    typeset -A opt_args
    _arguments -C '1:command:->command' '*::argument:->argument'
    case $state in
    (command)
        local -a commands
        commands=(
{}        )
        _describe command commands
        return
        ;;
    esac
    case $line[1] in
{}    esac
}}

_tintra "$@"
)",
                       names, cases);
}

} // namespace tintra::cli
