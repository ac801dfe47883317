#include "cli/docs/Pages.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace tintra::cli {

namespace {

std::string fishQuoted(std::string_view text) {
    std::string out = "'";
    for (const char c : text) {
        if (c == '\'' || c == '\\') out += '\\';
        out += c;
    }
    return out + '\'';
}

std::string valueWords(const Parameter& parameter) {
    if (!parameter.choices.empty())
        return fmt::format(" -x -a {}",
                           fishQuoted(fmt::format("{}", fmt::join(parameter.choices, " "))));
    if (parameter.takes == Takes::file) return " -r -F";
    if (parameter.takes == Takes::folder) return " -x -a '(__fish_complete_directories)'";
    return parameter.takes == Takes::text ? " -x" : "";
}

std::string optionLine(const Parameter& parameter, const std::string& condition) {
    std::string names;
    for (const auto& name : namesOf(parameter))
        names += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
    return fmt::format("complete -c tintra{}{}{} -d {}\n", condition, names, valueWords(parameter),
                       fishQuoted(parameter.help));
}

std::string positionalLine(const Parameter& parameter, const std::string& condition) {
    if (parameter.takes == Takes::file) return fmt::format("complete -c tintra{} -F\n", condition);
    if (parameter.choices.empty()) return {};
    return fmt::format("complete -c tintra{}{}\n", condition, valueWords(parameter));
}

} // namespace

std::string fishCompletion(const Pages& pages) {
    std::string text = "# fish completion for tintra, written from its table of commands\n"
                       "complete -c tintra -f\n";
    for (const auto& page : pages.commands)
        text += fmt::format("complete -c tintra -n __fish_use_subcommand -a {} -d {}\n",
                            page.command.name, fishQuoted(page.command.summary));
    for (const auto& parameter : pages.globals)
        text += optionLine(parameter, "");
    for (const auto& page : pages.commands) {
        const auto condition =
            fmt::format(" -n '__fish_seen_subcommand_from {}'", page.command.name);
        for (const auto& parameter : page.own)
            text += parameter.positional ? positionalLine(parameter, condition)
                                         : optionLine(parameter, condition);
    }
    return text;
}

} // namespace tintra::cli
