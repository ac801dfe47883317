#include "cli/docs/Pages.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace tintra::cli {

namespace {

std::string optionWords(const std::vector<Parameter>& parameters) {
    std::string words;
    for (const auto& parameter : parameters)
        if (!parameter.positional)
            for (const auto& name : namesOf(parameter))
                words += name + ' ';
    return words;
}

/// "--colour|--rgb-profile": the options whose next word is a value.
std::string valueNames(const std::vector<Parameter>& parameters) {
    std::vector<std::string> names;
    for (const auto& parameter : parameters)
        if (!parameter.positional && parameter.takes != Takes::nothing)
            for (auto& name : namesOf(parameter))
                names.push_back(std::move(name));
    return fmt::format("{}", fmt::join(names, "|"));
}

/// How the value of an option, or a positional, is completed.
std::string valueReply(const Parameter& parameter) {
    if (!parameter.choices.empty())
        return fmt::format("COMPREPLY=($(compgen -W \"{}\" -- \"$cur\"))",
                           fmt::join(parameter.choices, " "));
    if (parameter.takes == Takes::file) return "_filedir";
    if (parameter.takes == Takes::folder) return "_filedir -d";
    return "COMPREPLY=()";
}

/// One arm a parameter that takes a value: "name|name) reply; return ;;".
std::string valueArms(const std::string& scope, const std::vector<Parameter>& parameters) {
    std::string arms;
    for (const auto& parameter : parameters) {
        if (parameter.positional || parameter.takes == Takes::nothing) continue;
        std::vector<std::string> patterns;
        for (const auto& name : namesOf(parameter))
            patterns.push_back(scope + ':' + name);
        arms += fmt::format("        {}) {}; return ;;\n", fmt::join(patterns, "|"),
                            valueReply(parameter));
    }
    return arms;
}

/// The first positional with something to offer stands for all of them.
std::string positionalArm(const CommandPage& page) {
    for (const auto& parameter : page.own)
        if (parameter.positional && (!parameter.choices.empty() || parameter.takes != Takes::text))
            return fmt::format("        {}) {} ;;\n", page.command.name, valueReply(parameter));
    return {};
}

} // namespace

std::string bashCompletion(const Pages& pages) {
    std::string names, valueCases, optionCases, positionalCases;
    for (const auto& page : pages.commands) {
        const std::string name(page.command.name);
        names += name + ' ';
        valueCases += valueArms(name, page.own);
        optionCases += fmt::format("        {}) words=\"{}\" ;;\n", name, optionWords(page.own));
        positionalCases += positionalArm(page);
    }
    return fmt::format(R"(# bash completion for tintra, written from its table of commands

_tintra()
{{
    local cur prev words cword
    _init_completion || return
    local command="" i
    for ((i = 1; i < cword; i++)); do
        case "${{words[i]}}" in
        {}) ((i++)) ;;
        -*) ;;
        *) command="${{words[i]}}"; break ;;
        esac
    done
    case "$command:$prev" in
{}    esac
    case "*:$prev" in
{}    esac
    if [[ -z $command && $cur != -* ]]; then
        COMPREPLY=($(compgen -W "{}" -- "$cur"))
        return
    fi
    if [[ $cur == -* ]]; then
        local words=""
        case "$command" in
{}        esac
        COMPREPLY=($(compgen -W "$words{}--help" -- "$cur"))
        return
    fi
    case "$command" in
{}    esac
}} &&
    complete -F _tintra tintra
)",
                       valueNames(pages.globals), valueCases, valueArms("\\*", pages.globals),
                       names, optionCases, optionWords(pages.globals), positionalCases);
}

} // namespace tintra::cli
